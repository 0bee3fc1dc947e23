time _RES PHI0 => A                rw sync D  phi1 phi2
0    H    L       UUUUUUUUUUUUUUUU U  U    EA H    L
100  H    H       UUUUUUUUUUUUUUUU U  U    EA L    H
150  H    L       UUUUUUUUUUUUUUUU U  U    EA H    L
190  H    L       0000             H  L    EA H    L
200  H    H       0000             H  L    EA L    H
250  H    L       0000             H  L    EA H    L
290  H    L       0100             H  L    EA H    L
300  H    H       0100             H  L    EA L    H
# low with the fall, twice; high with the third
350  L    L       0100             H  L    EA H    L
390  L    L       01FF             H  L    EA H    L
400  L    H       01FF             H  L    EA L    H
450  L    L       01FF             H  L    EA H    L
490  L    L       01FE             H  L    EA H    L
500  L    H       01FE             H  L    EA L    H
550  H    L       01FE             H  L    EA H    L
590  H    L       0000             H  L    EA H    L
600  H    H       0000             H  L    EA L    H
# low for one fall, from the fall on
650  L    L       0000             H  L    EA H    L
690  L    L       0100             H  L    EA H    L
700  L    H       0100             H  L    EA L    H
750  H    L       0100             H  L    EA H    L
790  H    L       01FF             H  L    EA H    L
800  H    H       01FF             H  L    EA L    H
850  H    L       01FF             H  L    EA H    L
890  H    L       01FE             H  L    EA H    L
