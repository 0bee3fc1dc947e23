time  byte _g => cpu.A            cpu.R/W cpu.D
# the vector, BRK and the byte behind it
5600  00   L     FFFC             H       00
6600  E0   L     FFFD             H       E0
7600  00   L     E000             H       00
8600  00   H     E001             H       ZZZZZZZZ
# a write
9059  00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ
9060  00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ
9080  00   H     01FD             L       ZZZZZZZZ
9499  00   H     01FD             L       ZZZZZZZZ
9539  00   H     01FD             L       ZZZZZZZZ
9540  00   H     01FD             L       E0
# another write behind it
10059 00   H     UUUUUUUUUUUUUUUU U       E0
10060 00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ
10080 00   H     01FC             L       ZZZZZZZZ
10499 00   H     01FC             L       ZZZZZZZZ
10539 00   H     01FC             L       ZZZZZZZZ
10540 00   H     01FC             L       02
# another write behind it
11059 00   H     UUUUUUUUUUUUUUUU U       02
11060 00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ
11080 00   H     01FB             L       ZZZZZZZZ
11499 00   H     01FB             L       ZZZZZZZZ
11539 00   H     01FB             L       ZZZZZZZZ
11540 00   H     01FB             L       36
# and a read
12059 00   H     UUUUUUUUUUUUUUUU U       36
12060 00   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ
12080 00   H     FFFE             H       ZZZZZZZZ
12600 5A   L     FFFE             H       5A
