time a => q
0 0 X
48 0 X
