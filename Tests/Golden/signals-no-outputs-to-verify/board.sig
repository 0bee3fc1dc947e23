time a
0 0
10 1
