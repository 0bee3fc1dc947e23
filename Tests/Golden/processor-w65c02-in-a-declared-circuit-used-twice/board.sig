time  BE1 BE2 => one.A            one.RW one.SYNC two.A            two.RW two.SYNC
# the clock of the second begins a cycle later
0     H   H      UUUUUUUUUUUUUUUU U      U        UUUUUUUUUUUUUUUU U      U
1050  H   H      0000             H      L        UUUUUUUUUUUUUUUU U      U
2050  H   H      0100             H      L        0000             H      L
7010  H   H      UUUUUUUUUUUUUUUU U      U        UUUUUUUUUUUUUUUU U      U
7049  H   H      UUUUUUUUUUUUUUUU U      U        UUUUUUUUUUUUUUUU U      U
7050  H   H      EAEA             H      H        FFFD             H      L
# the first gives its bus away
7200  L   H      EAEA             H      H        FFFD             H      L
7239  L   H      EAEA             H      H        FFFD             H      L
7240  L   H      ZZZZZZZZZZZZZZZZ Z      H        FFFD             H      L
8050  L   H      ZZZZZZZZZZZZZZZZ Z      L        EAEA             H      H
9050  L   H      ZZZZZZZZZZZZZZZZ Z      H        EAEB             H      L
# and the second, when the first takes it
9200  H   L      ZZZZZZZZZZZZZZZZ Z      H        EAEB             H      L
9239  H   L      ZZZZZZZZZZZZZZZZ Z      H        EAEB             H      L
9240  H   L      EAEB             H      H        ZZZZZZZZZZZZZZZZ Z      L
10050 H   L      EAEC             H      L        ZZZZZZZZZZZZZZZZ Z      H
11050 H   L      EAEC             H      H        ZZZZZZZZZZZZZZZZ Z      L
11200 H   H      EAEC             H      H        ZZZZZZZZZZZZZZZZ Z      L
11240 H   H      EAEC             H      H        EAEC             H      L
