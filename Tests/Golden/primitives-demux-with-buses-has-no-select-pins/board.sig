time x => q
0    L    L
