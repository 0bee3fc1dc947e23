time a => q
0    L    L
10   H    H
