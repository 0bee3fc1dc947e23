time  byte _g BE => cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP
0     00   L  H     UUUUUUUUUUUUUUUU U       00       U        U
# the vector, BRK and the byte behind it
5600  00   L  H     FFFC             H       00       L        L
6600  E0   L  H     FFFD             H       E0       L        H
7600  00   L  H     E000             H       00       H        H
8600  00   H  H     E001             H       ZZZZZZZZ L        H
# the first write: BE takes the data away
9525  00   H  H     01FD             L       E0       L        H
9600  00   H  L     01FD             L       E0       L        H
9624  00   H  L     01FD             L       E0       L        H
9625  00   H  L     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
# others may use the bus
9650  5A   L  L     ZZZZZZZZZZZZZZZZ Z       5A       L        H
9680  5A   H  L     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
# and brings them back
9700  5A   H  H     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
9724  5A   H  H     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
9725  5A   H  H     01FD             L       E0       L        H
# the second write begins without the bus
9900  5A   H  L     01FD             L       E0       L        H
9925  5A   H  L     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
10030 5A   H  L     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
10525 5A   H  L     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
10600 5A   H  H     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
10624 5A   H  H     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
10625 5A   H  H     01FC             L       02       L        H
# the third one has no data yet when the bus is back
10900 5A   H  L     01FC             L       02       L        H
10925 5A   H  L     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
11200 5A   H  H     ZZZZZZZZZZZZZZZZ Z       ZZZZZZZZ L        H
11225 5A   H  H     01FB             L       ZZZZZZZZ L        H
11524 5A   H  H     01FB             L       ZZZZZZZZ L        H
11525 5A   H  H     01FB             L       36       L        H
# BE undefined
11600 5A   H  U     01FB             L       36       L        H
11624 5A   H  U     01FB             L       36       L        H
11625 5A   H  U     UUUUUUUUUUUUUUUU U       UUUUUUUU L        H
11700 5A   H  H     UUUUUUUUUUUUUUUU U       UUUUUUUU L        H
11725 5A   H  H     01FB             L       36       L        H
# behind the writes
12009 5A   H  H     01FB             L       36       L        H
12010 5A   H  H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U
12030 5A   H  H     FFFE             H       ZZZZZZZZ L        L
12600 5A   L  H     FFFE             H       5A       L        L
