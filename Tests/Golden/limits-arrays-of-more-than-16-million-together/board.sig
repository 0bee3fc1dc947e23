time a
0 0
