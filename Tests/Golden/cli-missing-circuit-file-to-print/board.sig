time a => q
0 0 X
12 1 X
