time a => q
0 0 X
3 1 X
6 1 X
