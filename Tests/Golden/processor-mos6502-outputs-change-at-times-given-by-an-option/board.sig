# The options leave t_ah and t_dhw as the circuit has them.
cpu(t_ads=45, t_mds=200)
time  data off => A                rw sync D
0     EA   L      UUUUUUUUUUUUUUUU U  U    EA
# the first fall, out of nothing
519   EA   L      UUUUUUUUUUUUUUUU U  U    EA
520   EA   L      UUUUUUUUUUUUUUUU U  U    EA
544   EA   L      UUUUUUUUUUUUUUUU U  U    EA
545   EA   L      0000             H  L    EA
# a rise in a read cycle
1200  EA   L      0000             H  L    EA
# to the first fetch
6519  EA   L      FFFD             H  L    EA
6520  EA   L      UUUUUUUUUUUUUUUU U  U    EA
6544  EA   L      UUUUUUUUUUUUUUUU U  U    EA
6545  EA   L      EAEA             H  H    EA
6700  00   L      EAEA             H  H    00
7700  EA   L      EAEB             H  L    EA
8300  EA   H      EAEB             H  L    ZZZZZZZZ
# from a read to a write
8514  EA   H      EAEB             H  L    ZZZZZZZZ
8515  EA   H      EAEB             H  L    UUUUUUUU
8519  EA   H      EAEB             H  L    UUUUUUUU
8520  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
8544  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
8545  EA   H      01FD             L  L    UUUUUUUU
# data of the write
9199  EA   H      01FD             L  L    UUUUUUUU
9200  EA   H      01FD             L  L    EA
# from a write to a write
9514  EA   H      01FD             L  L    EA
9515  EA   H      01FD             L  L    UUUUUUUU
9519  EA   H      01FD             L  L    UUUUUUUU
9520  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
9544  EA   H      UUUUUUUUUUUUUUUU U  U    UUUUUUUU
9545  EA   H      01FC             L  L    UUUUUUUU
10199 EA   H      01FC             L  L    UUUUUUUU
10200 EA   H      01FC             L  L    EC
10514 EA   H      01FC             L  L    EC
10515 EA   H      01FC             L  L    UUUUUUUU
11199 EA   H      01FB             L  L    UUUUUUUU
11200 EA   H      01FB             L  L    36
# from a write to a read
11514 EA   H      01FB             L  L    36
11515 EA   H      01FB             L  L    ZZZZZZZZ
11519 EA   H      01FB             L  L    ZZZZZZZZ
11520 EA   H      UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ
11544 EA   H      UUUUUUUUUUUUUUUU U  U    ZZZZZZZZ
11545 EA   H      FFFE             H  L    ZZZZZZZZ
11700 EA   L      FFFE             H  L    EA
# a rise in a read cycle
12200 EA   L      FFFE             H  L    EA
