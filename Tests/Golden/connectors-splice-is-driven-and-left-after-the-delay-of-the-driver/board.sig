# Both drivers are undefined up to their delays.
time a b _ga _gb => left right
0    1 3 L   H      UUUU UUUU
9    1 3 L   H      UUUU UUUU
10   1 3 L   H      1    8
100  2 3 L   H      1    8
109  2 3 L   H      1    8
110  2 3 L   H      2    4
# To the other side: both drive for 6 ns.
200  2 3 H   L      2    4
203  2 3 H   L      2    4
204  2 3 H   L      UUUU UUUU
209  2 3 H   L      UUUU UUUU
210  2 3 H   L      C    3
# Back: nobody drives for 6 ns.
300  2 3 L   H      C    3
303  2 3 L   H      C    3
304  2 3 L   H      ZZZZ ZZZZ
309  2 3 L   H      ZZZZ ZZZZ
310  2 3 L   H      2    4
