# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _NMI => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H       0000  H       EA    L        H
550  EA   H       0100  H       EA    L        H
750  EA   H       01FF  H       EA    L        H
950  EA   H       01FE  H       EA    L        H
1150 00   H       FFFC  H       00    L        L
1350 E0   H       FFFD  H       E0    L        H
# SED
1550 F8   H       E000  H       F8    H        H
1750 EA   H       E001  H       EA    L        H
# PHP pushes D
1950 08   H       E001  H       08    H        H
2150 EA   H       E002  H       EA    L        H
2350 EA   H       01FD  L       3E    L        H
# NOP, with an interrupt that pushes D as well
2550 EA   L       E002  H       EA    H        H
2750 EA   L       E003  H       EA    L        H
2950 EA   L       E003  H       EA    H        H
3150 EA   L       E003  H       EA    L        H
3350 EA   L       01FC  L       E0    L        H
3550 EA   L       01FB  L       03    L        H
3750 EA   L       01FA  L       2E    L        H
3950 00   L       FFFA  H       00    L        L
4150 E2   L       FFFB  H       E2    L        H
# but D is clear behind it
4350 08   L       E200  H       08    H        H
4550 EA   L       E201  H       EA    L        H
4750 EA   L       01F9  L       36    L        H
# the same with BRK, which pushes B
4950 F8   L       E201  H       F8    H        H
5150 EA   L       E202  H       EA    L        H
5350 00   L       E202  H       00    H        H
5550 EA   L       E203  H       EA    L        H
5750 EA   L       01F8  L       E2    L        H
5950 EA   L       01F7  L       04    L        H
6150 EA   L       01F6  L       3E    L        H
6350 00   L       FFFE  H       00    L        L
6550 E3   L       FFFF  H       E3    L        H
6750 08   L       E300  H       08    H        H
6950 EA   L       E301  H       EA    L        H
7150 EA   L       01F5  L       36    L        H
7350 EA   L       E301  H       EA    H        H
