# The clock falls at 500, 1500 and so on.
time  data off => A                rw sync D
0     EA   L      UUUUUUUUUUUUUUUU U  U    EA
# the first fall, out of nothing
509   EA   L      UUUUUUUUUUUUUUUU U  U    EA
510   EA   L      UUUUUUUUUUUUUUUU U  U    EA
529   EA   L      UUUUUUUUUUUUUUUU U  U    EA
530   EA   L      0000             H  L    EA
# a rise in a read cycle
1025  EA   L      0000             H  L    EA
# to the first fetch
6509  EA   L      FFFD             H  L    EA
6510  EA   L      UUUUUUUUUUUUUUUU U  U    EA
6529  EA   L      UUUUUUUUUUUUUUUU U  U    EA
6530  EA   L      EAEA             H  H    EA
6700  00   L      EAEA             H  H    00
7700  EA   L      EAEB             H  L    EA
8300  EA   H      EAEB             H  L    ZZZZZZZZ
# from a read to a write
8509  EA   H      EAEB             H  L    ZZZZZZZZ
8510  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
8529  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
8530  EA   H      01FD             L  L    UUUUUUUU
# data of the write
9024  EA   H      01FD             L  L    UUUUUUUU
9025  EA   H      01FD             L  L    EA
# from a write to a write
9509  EA   H      01FD             L  L    EA
9510  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
9529  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
9530  EA   H      01FC             L  L    UUUUUUUU
10024 EA   H      01FC             L  L    UUUUUUUU
10025 EA   H      01FC             L  L    EC
10509 EA   H      01FC             L  L    EC
10510 EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
11024 EA   H      01FB             L  L    UUUUUUUU
11025 EA   H      01FB             L  L    36
# from a write to a read
11509 EA   H      01FB             L  L    36
11510 EA   H      UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ
11529 EA   H      UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ
11530 EA   H      FFFE             H  L    ZZZZZZZZ
11700 EA   L      FFFE             H  L    EA
# a rise in a read cycle
12025 EA   L      FFFE             H  L    EA
