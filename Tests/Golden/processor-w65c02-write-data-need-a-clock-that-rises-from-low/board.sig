time  PHI0 _g => cpu.A            cpu.R/W cpu.D
0     L    L     UUUUUUUUUUUUUUUU U       00
100   H    L     UUUUUUUUUUUUUUUU U       UUUUUUUU
1000  L    L     UUUUUUUUUUUUUUUU U       UUUUUUUU
1500  H    L     0000             H       00
2000  L    L     0000             H       00
2500  H    L     0100             H       00
3000  L    L     0100             H       00
3500  H    L     01FF             H       00
4000  L    L     01FF             H       00
4500  H    L     01FE             H       00
5000  L    L     01FE             H       00
5500  H    L     FFFC             H       00
6000  L    L     FFFC             H       00
6500  H    L     FFFD             H       00
7000  L    L     FFFD             H       00
7500  H    L     0000             H       00
8000  L    L     0000             H       00
8500  H    L     0001             H       00
8600  H    H     0001             H       ZZZZZZZZ
# the write begins
9000  L    H     0001             H       ZZZZZZZZ
9030  L    H     01FD             L       ZZZZZZZZ
# the clock rises through U: no data
9400  U    H     01FD             L       ZZZZZZZZ
9500  H    H     01FD             L       ZZZZZZZZ
9525  H    H     01FD             L       ZZZZZZZZ
9990  H    H     01FD             L       ZZZZZZZZ
# the next one
10000 L    H     01FD             L       ZZZZZZZZ
10500 H    H     01FC             L       ZZZZZZZZ
10524 H    H     01FC             L       ZZZZZZZZ
10525 H    H     01FC             L       02
# the clock falls through U and rises again: the data stay, the cycle too
10700 U    H     01FC             L       02
10800 L    H     01FC             L       02
10850 L    H     01FC             L       02
11000 H    H     01FC             L       02
11500 L    H     01FC             L       02
11510 L    H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ
11530 L    H     01FB             L       ZZZZZZZZ
