time a => a
0   5    5
