# No time is left between two cycles.
time  data off => A                rw sync D
0     EA   L      UUUUUUUUUUUUUUUU U  U    EA
# the first fall, out of nothing
499   EA   L      UUUUUUUUUUUUUUUU U  U    EA
500   EA   L      0000             H  L    EA
# a rise in a read cycle
1000  EA   L      0000             H  L    EA
# to the first fetch
6499  EA   L      FFFD             H  L    EA
6500  EA   L      EAEA             H  H    EA
6700  00   L      EAEA             H  H    00
7700  EA   L      EAEB             H  L    EA
8300  EA   H      EAEB             H  L    ZZZZZZZZ
# from a read to a write
8499  EA   H      EAEB             H  L    ZZZZZZZZ
8500  EA   H      01FD             L  L    UUUUUUUU
# data of the write
8999  EA   H      01FD             L  L    UUUUUUUU
9000  EA   H      01FD             L  L    EA
# from a write to a write
9499  EA   H      01FD             L  L    EA
9500  EA   H      01FC             L  L    UUUUUUUU
9999  EA   H      01FC             L  L    UUUUUUUU
10000 EA   H      01FC             L  L    EC
10499 EA   H      01FC             L  L    EC
10500 EA   H      01FB             L  L    UUUUUUUU
10999 EA   H      01FB             L  L    UUUUUUUU
11000 EA   H      01FB             L  L    36
# from a write to a read
11499 EA   H      01FB             L  L    36
11500 EA   H      FFFE             H  L    ZZZZZZZZ
11700 EA   L      FFFE             H  L    EA
# a rise in a read cycle
12000 EA   L      FFFE             H  L    EA
