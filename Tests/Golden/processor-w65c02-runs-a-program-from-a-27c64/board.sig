# A line is a cycle, looked at 250 ns behind the rising flank.
time  BE => cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP
100   H     UUUUUUUUUUUUUUUU U       UUUUUUUU U        U
# the reset sequence
1750  H     0000             H       A9       L        H
2750  H     0100             H       UUUUUUUU L        H
3750  H     01FF             H       UUUUUUUU L        H
4750  H     01FE             H       UUUUUUUU L        H
5750  H     FFFC             H       00       L        L
6750  H     FFFD             H       E0       L        H
# lda #$5A, inc a, sta $0200
7750  H     E000             H       A9       H        H
8750  H     E001             H       5A       L        H
9750  H     E002             H       1A       H        H
10750 H     E003             H       8D       L        H
11750 H     E003             H       8D       H        H
12750 H     E004             H       00       L        H
13750 H     E005             H       02       L        H
14750 H     0200             L       5B       L        H
# the branch goes to itself
15750 H     E006             H       80       H        H
16750 H     E007             H       FE       L        H
17750 H     E008             H       UUUUUUUU L        H
18750 H     E006             H       80       H        H
19750 H     E007             H       FE       L        H
20750 H     E008             H       UUUUUUUU L        H
21750 H     E006             H       80       H        H
22750 H     E007             H       FE       L        H
23750 H     E008             H       UUUUUUUU L        H
