time a => q p
0 0 1 1
10 1 0 0
20 0 H Z
