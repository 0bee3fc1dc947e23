time  byte _g => cpu.A            cpu.R/W cpu.D    nmosD
# the vector, BRK and the byte behind it
5600  00   L     FFFC             H       00       00
6600  E0   L     FFFD             H       E0       E0
7600  00   L     E000             H       00       00
8600  00   H     E001             H       ZZZZZZZZ ZZZZZZZZ
# a write
9009  00   H     E001             H       ZZZZZZZZ ZZZZZZZZ
9010  00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ UUUUUUUU
9030  00   H     01FD             L       ZZZZZZZZ UUUUUUUU
9499  00   H     01FD             L       ZZZZZZZZ UUUUUUUU
9524  00   H     01FD             L       ZZZZZZZZ UUUUUUUU
9525  00   H     01FD             L       E0       E0
# another write behind it: the data float, those of the MOS6502 are undefined
10009 00   H     01FD             L       E0       E0
10010 00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ UUUUUUUU
10030 00   H     01FC             L       ZZZZZZZZ UUUUUUUU
10499 00   H     01FC             L       ZZZZZZZZ UUUUUUUU
10524 00   H     01FC             L       ZZZZZZZZ UUUUUUUU
10525 00   H     01FC             L       02       02
# another write behind it: the data float, those of the MOS6502 are undefined
11009 00   H     01FC             L       02       02
11010 00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ UUUUUUUU
11030 00   H     01FB             L       ZZZZZZZZ UUUUUUUU
11499 00   H     01FB             L       ZZZZZZZZ UUUUUUUU
11524 00   H     01FB             L       ZZZZZZZZ UUUUUUUU
11525 00   H     01FB             L       36       36
# and a read
12009 00   H     01FB             L       36       36
12010 00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ ZZZZZZZZ
12030 00   H     FFFE             H       ZZZZZZZZ ZZZZZZZZ
12600 5A   L     FFFE             H       5A       5A
