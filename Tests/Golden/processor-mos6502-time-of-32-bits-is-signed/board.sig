# A setup time of -1: the outputs of a cycle stand one ns before its fall, and are lost at the hold.
time  data off => A                rw sync D
0     EA   L      UUUUUUUUUUUUUUUU U  U    EA
# the first fall, out of nothing
498   EA   L      UUUUUUUUUUUUUUUU U  U    EA
499   EA   L      0000             H  L    EA
509   EA   L      0000             H  L    EA
510   EA   L      UUUUUUUUUUUUUUUU U  U    EA
# a rise in a read cycle
1025  EA   L      UUUUUUUUUUUUUUUU U  U    EA
# to the first fetch
6498  EA   L      UUUUUUUUUUUUUUUU U  U    EA
6499  EA   L      EAEA             H  H    EA
6509  EA   L      EAEA             H  H    EA
6510  EA   L      UUUUUUUUUUUUUUUU U  U    EA
6700  00   L      UUUUUUUUUUUUUUUU U  U    00
7700  EA   L      UUUUUUUUUUUUUUUU U  U    EA
8300  EA   H      UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ
# from a read to a write
8498  EA   H      UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ
8499  EA   H      01FD             L  L    ZZZZZZZZ
8509  EA   H      01FD             L  L    ZZZZZZZZ
8510  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
# data of the write
9024  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
9025  EA   H      UUUUUUUUUUUUUUUU U  U    EA
# from a write to a write
9498  EA   H      UUUUUUUUUUUUUUUU U  U    EA
9499  EA   H      01FC             L  L    EA
9509  EA   H      01FC             L  L    EA
9510  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
10024 EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
10025 EA   H      UUUUUUUUUUUUUUUU U  U    EC
10509 EA   H      01FB             L  L    EC
10510 EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
11024 EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
11025 EA   H      UUUUUUUUUUUUUUUU U  U    36
# from a write to a read
11498 EA   H      UUUUUUUUUUUUUUUU U  U    36
11499 EA   H      FFFE             H  L    36
11509 EA   H      FFFE             H  L    36
11510 EA   H      UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ
11700 EA   L      UUUUUUUUUUUUUUUU U  U    EA
# a rise in a read cycle
12025 EA   L      UUUUUUUUUUUUUUUU U  U    EA
