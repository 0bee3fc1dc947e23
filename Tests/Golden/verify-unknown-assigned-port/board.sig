time a => q
zz.p = H
0 0 H
