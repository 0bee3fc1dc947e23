time a b => q
0 H Z H
1 Z L L
2 H L U
3 H H U
4 L L U
5 Z Z U
6 U Z U
7 H U U
8 X Z U
