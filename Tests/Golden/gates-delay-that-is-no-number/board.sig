time a => q
0 0 H
1 1 L
