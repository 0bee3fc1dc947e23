# BRK pushes three bytes, one cycle behind the other.
time data off PHI0 => A                rw sync D        phi1 phi2
0    EA   L   L       UUUUUUUUUUUUUUUU U  U    EA       H    L
100  EA   L   H       UUUUUUUUUUUUUUUU U  U    EA       L    H
150  EA   L   L       UUUUUUUUUUUUUUUU U  U    EA       H    L
200  EA   L   H       0000             H  L    EA       L    H
250  EA   L   L       0000             H  L    EA       H    L
300  EA   L   H       0100             H  L    EA       L    H
350  EA   L   L       0100             H  L    EA       H    L
400  EA   L   H       01FF             H  L    EA       L    H
450  EA   L   L       01FF             H  L    EA       H    L
500  EA   L   H       01FE             H  L    EA       L    H
550  EA   L   L       01FE             H  L    EA       H    L
600  EA   L   H       FFFC             H  L    EA       L    H
650  EA   L   L       FFFC             H  L    EA       H    L
700  EA   L   H       FFFD             H  L    EA       L    H
750  EA   L   L       FFFD             H  L    EA       H    L
790  00   L   L       EAEA             H  H    00       H    L
800  00   L   H       EAEA             H  H    00       L    H
850  00   L   L       EAEA             H  H    00       H    L
890  EA   H   L       EAEB             H  L    ZZZZZZZZ H    L
900  EA   H   H       EAEB             H  L    ZZZZZZZZ L    H
# the first write: the clock rises through undefined, and no data comes
950  EA   H   L       EAEB             H  L    ZZZZZZZZ H    L
980  EA   H   L       01FD             L  L    UUUUUUUU H    L
1000 EA   H   U       01FD             L  L    UUUUUUUU U    U
1010 EA   H   H       01FD             L  L    UUUUUUUU L    H
1025 EA   H   H       01FD             L  L    UUUUUUUU L    H
1035 EA   H   H       01FD             L  L    UUUUUUUU L    H
1049 EA   H   H       01FD             L  L    UUUUUUUU L    H
# the second: a clean rise
1050 EA   H   L       01FD             L  L    UUUUUUUU H    L
1080 EA   H   L       01FC             L  L    UUUUUUUU H    L
1100 EA   H   H       01FC             L  L    UUUUUUUU L    H
1124 EA   H   H       01FC             L  L    UUUUUUUU L    H
1125 EA   H   H       01FC             L  L    EC       L    H
# the third: through floating
1150 EA   H   L       01FC             L  L    EC       H    L
1159 EA   H   L       01FC             L  L    EC       H    L
1160 EA   H   L       UUUUUUUUUUUUUUUU U  U    UUUUUUUU H    L
1200 EA   H   Z       01FB             L  L    UUUUUUUU U    U
1210 EA   H   H       01FB             L  L    UUUUUUUU L    H
1240 EA   H   H       01FB             L  L    UUUUUUUU L    H
1250 EA   H   L       01FB             L  L    UUUUUUUU H    L
1259 EA   H   L       01FB             L  L    UUUUUUUU H    L
1260 EA   H   L       UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ H    L
1290 EA   L   L       FFFE             H  L    EA       H    L
