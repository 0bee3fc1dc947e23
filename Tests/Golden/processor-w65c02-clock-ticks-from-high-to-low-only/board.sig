time  PHI0 => cpu.A            cpu.R/W cpu.SYNC cpu.PHI1 cpu.PHI2
# out of U: no flank
0     U       UUUUUUUUUUUUUUUU U       U        U        U
500   L       UUUUUUUUUUUUUUUU U       U        H        L
700   U       UUUUUUUUUUUUUUUU U       U        U        U
1000  H       UUUUUUUUUUUUUUUU U       U        L        H
# the first tick
2000  L       UUUUUUUUUUUUUUUU U       U        H        L
2030  L       0000             H       L        H        L
# a clock that goes through U: none
2500  H       0000             H       L        L        H
3000  U       0000             H       L        U        U
4000  L       0000             H       L        H        L
4010  L       0000             H       L        H        L
4030  L       0000             H       L        H        L
# through Z: none
5000  H       0000             H       L        L        H
5500  Z       0000             H       L        U        U
5501  L       0000             H       L        H        L
5511  L       0000             H       L        H        L
# up through Z and down: one
5800  Z       0000             H       L        U        U
6000  H       0000             H       L        L        H
7000  L       0000             H       L        H        L
7010  L       UUUUUUUUUUUUUUUU U       U        H        L
7030  L       0100             H       L        H        L
# high for 1 ns; the rising flank has handed the old address over for 30 ns later
8000  H       0100             H       L        L        H
8001  L       0100             H       L        H        L
8010  L       0100             H       L        H        L
8011  L       UUUUUUUUUUUUUUUU U       U        H        L
8029  L       UUUUUUUUUUUUUUUU U       U        H        L
8030  L       0100             H       U        H        L
8031  L       01FF             H       L        H        L
# low for 1 ns
9000  H       01FF             H       L        L        H
10500 L       01FF             H       L        H        L
10501 H       01FF             H       L        L        H
10510 H       UUUUUUUUUUUUUUUU U       U        L        H
10529 H       UUUUUUUUUUUUUUUU U       U        L        H
10530 H       01FE             H       L        L        H
