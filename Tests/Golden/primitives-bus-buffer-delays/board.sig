# From the start.
time a _g => q0   q4   q10
0    5 L     5    UUUU UUUU
3    5 L     5    UUUU UUUU
4    5 L     5    5    UUUU
9    5 L     5    5    UUUU
10   5 L     5    5    5
# Data.
100  A L     A    5    5
103  A L     A    5    5
104  A L     A    A    5
109  A L     A    A    5
110  A L     A    A    A
# Off.
200  A H     ZZZZ A    A
203  A H     ZZZZ A    A
204  A H     ZZZZ ZZZZ A
209  A H     ZZZZ ZZZZ A
210  A H     ZZZZ ZZZZ ZZZZ
# On.
300  6 L     6    ZZZZ ZZZZ
303  6 L     6    ZZZZ ZZZZ
304  6 L     6    6    ZZZZ
309  6 L     6    6    ZZZZ
310  6 L     6    6    6
# A pulse of one nanosecond on the data.
400  9 L     9    6    6
401  6 L     6    6    6
403  6 L     6    6    6
404  6 L     6    9    6
405  6 L     6    6    6
409  6 L     6    6    6
410  6 L     6    6    9
411  6 L     6    6    6
# A pulse of two nanoseconds on the gate.
500  6 H     ZZZZ 6    6
502  6 L     6    6    6
503  6 L     6    6    6
504  6 L     6    ZZZZ 6
506  6 L     6    6    6
509  6 L     6    6    6
510  6 L     6    6    ZZZZ
511  6 L     6    6    ZZZZ
512  6 L     6    6    6
