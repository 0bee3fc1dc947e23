time u.g.in => q
0 0 X
3 0 X
10 1 X
13 1 X
