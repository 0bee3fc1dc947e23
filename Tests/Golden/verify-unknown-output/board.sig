time a => zz
0 0 H
