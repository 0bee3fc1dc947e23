time a
0 0
12 1
