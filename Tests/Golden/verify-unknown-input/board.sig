time zz => q
0 0 H
