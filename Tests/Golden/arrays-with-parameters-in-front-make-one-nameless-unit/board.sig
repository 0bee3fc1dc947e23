time a
0 0
3 0
5 0
