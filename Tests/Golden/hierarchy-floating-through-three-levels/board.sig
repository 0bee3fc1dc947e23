time a => x y z
0 Z Z U U
1 H H H H
2 Z Z U U
