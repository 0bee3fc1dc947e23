time a _g => bus
0    6 H     UUUU
9    6 H     UUUU
10   6 H     6
100  6 L     6
109  6 L     6
110  6 L     UUUU
200  6 H     UUUU
209  6 H     UUUU
210  6 H     6
