time a => q
0 0 X
2 0 X
5 0 X
10 1 X
12 1 X
15 1 X
