time a b
0 0 X
7 1 1
