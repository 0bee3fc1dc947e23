time a => q p r
0 Z U Z U
1 H H H H
2 X U U U
