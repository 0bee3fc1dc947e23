time a => q
0 0 X
49 0 X
