time a => q
0    L    U
3    L    H
