# A pulse of 1 ns clocks as well.
time PHI0 => A                rw sync D  phi1 phi2
0    U       UUUUUUUUUUUUUUUU U  U    EA U    U
# low out of undefined: the clock outputs only
10   L       UUUUUUUUUUUUUUUU U  U    EA H    L
20   H       UUUUUUUUUUUUUUUU U  U    EA L    H
29   H       UUUUUUUUUUUUUUUU U  U    EA L    H
# the first fall; the next come before the address is out
30   L       UUUUUUUUUUUUUUUU U  U    EA H    L
39   L       UUUUUUUUUUUUUUUU U  U    EA H    L
40   L       UUUUUUUUUUUUUUUU U  U    EA H    L
59   L       UUUUUUUUUUUUUUUU U  U    EA H    L
60   L       0000             H  L    EA H    L
100  H       0000             H  L    EA L    H
101  L       0000             H  L    EA H    L
110  L       0000             H  L    EA H    L
111  L       UUUUUUUUUUUUUUUU U  U    EA H    L
130  L       UUUUUUUUUUUUUUUU U  U    EA H    L
131  L       0100             H  L    EA H    L
200  U       0100             H  L    EA U    U
201  H       0100             H  L    EA L    H
202  Z       0100             H  L    EA U    U
203  L       0100             H  L    EA H    L
204  X       0100             H  L    EA U    U
205  H       0100             H  L    EA L    H
300  L       0100             H  L    EA H    L
330  L       01FF             H  L    EA H    L
