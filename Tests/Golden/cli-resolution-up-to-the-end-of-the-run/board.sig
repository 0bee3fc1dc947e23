time a => q
0 0 X
11 1 X
