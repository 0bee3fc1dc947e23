time a => q q
0 0 L H
10 1 L H
