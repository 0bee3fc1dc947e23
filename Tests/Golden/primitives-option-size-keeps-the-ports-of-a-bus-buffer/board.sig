b(size=8, delay=2)
time a _g => q
0    5 L     UUUU
10   5 L     5
100  A L     5
109  A L     5
110  A L     A
