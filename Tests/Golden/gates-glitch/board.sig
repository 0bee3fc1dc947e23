time a => out
0 0 X
10 1 X
30 0 X
40 0 X
