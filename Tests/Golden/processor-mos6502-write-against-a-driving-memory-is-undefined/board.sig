time  data off => A                rw sync D
0     EA   L      UUUUUUUUUUUUUUUU U  U    EA
# PHP
6600  08   L      EAEA             H  H    08
7600  EA   L      EAEB             H  L    EA
# the memory drives as well
8600  EA   L      01FD             L  L    UUUUUUUU
9100  EA   L      01FD             L  L    UUUUUUUU
# and lets go
9400  EA   H      01FD             L  L    36
9600  EA   L      EAEB             H  H    EA
# nothing drives: the pins read U where the net is Z
10600 EA   H      EAEC             H  L    ZZZZZZZZ
