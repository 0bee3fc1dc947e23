time a => q
0 H g
