time a b => q p
0 0 0 L H
1 1 1 H L
2 1 0 L H
3 U 1 U U
