time p => q
0 H H
