time RDY PHI0 => A                rw sync D  phi1 phi2
0    L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
100  L   H       UUUUUUUUUUUUUUUU U  U    EA L    H
# RDY low from the start: the processor stands before the first cycle of its reset sequence
150  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
159  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
160  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
179  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
180  L   L       0000             H  H    EA H    L
200  L   H       0000             H  H    EA L    H
225  L   H       0000             H  H    EA L    H
250  L   L       0000             H  H    EA H    L
259  L   L       0000             H  H    EA H    L
260  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
279  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
280  L   L       0000             H  H    EA H    L
290  H   L       0000             H  H    EA H    L
300  H   H       0000             H  H    EA L    H
350  H   L       0000             H  H    EA H    L
359  H   L       0000             H  H    EA H    L
360  H   L       UUUUUUUUUUUUUUUU U  U    EA H    L
379  H   L       UUUUUUUUUUUUUUUU U  U    EA H    L
380  H   L       0000             H  L    EA H    L
400  L   H       0000             H  L    EA L    H
# one cycle repeated: the address is undefined for a time all the same
450  L   L       0000             H  L    EA H    L
459  L   L       0000             H  L    EA H    L
460  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
479  L   L       UUUUUUUUUUUUUUUU U  U    EA H    L
480  L   L       0000             H  L    EA H    L
490  H   L       0000             H  L    EA H    L
500  H   H       0000             H  L    EA L    H
550  H   L       0000             H  L    EA H    L
559  H   L       0000             H  L    EA H    L
560  H   L       UUUUUUUUUUUUUUUU U  U    EA H    L
579  H   L       UUUUUUUUUUUUUUUU U  U    EA H    L
580  H   L       0100             H  L    EA H    L
