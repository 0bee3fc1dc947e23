time a => q
0    L    L
