time PHI0 => A                rw sync D  phi1 phi2
0    H       UUUUUUUUUUUUUUUU U  U    EA L    H
# high to low, with undefined, floating or unknown between
100  U       UUUUUUUUUUUUUUUU U  U    EA U    U
200  L       UUUUUUUUUUUUUUUU U  U    EA H    L
230  L       UUUUUUUUUUUUUUUU U  U    EA H    L
300  H       UUUUUUUUUUUUUUUU U  U    EA L    H
400  Z       UUUUUUUUUUUUUUUU U  U    EA U    U
500  L       UUUUUUUUUUUUUUUU U  U    EA H    L
530  L       UUUUUUUUUUUUUUUU U  U    EA H    L
600  H       UUUUUUUUUUUUUUUU U  U    EA L    H
700  X       UUUUUUUUUUUUUUUU U  U    EA U    U
800  L       UUUUUUUUUUUUUUUU U  U    EA H    L
830  L       UUUUUUUUUUUUUUUU U  U    EA H    L
# and directly
900  H       UUUUUUUUUUUUUUUU U  U    EA L    H
1000 L       UUUUUUUUUUUUUUUU U  U    EA H    L
1030 L       0000             H  L    EA H    L
1100 H       0000             H  L    EA L    H
1101 U       0000             H  L    EA U    U
1102 L       0000             H  L    EA H    L
1140 L       0000             H  L    EA H    L
1200 H       0000             H  L    EA L    H
1300 L       0000             H  L    EA H    L
1330 L       0100             H  L    EA H    L
