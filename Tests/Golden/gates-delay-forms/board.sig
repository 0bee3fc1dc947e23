time a => dec hex dollar bin other
0  0 U U U U U
2  0 U U U U U
3  0 U U U H H
9  0 U U U H H
10 0 H U H H H
15 0 H U H H H
16 0 H H H H H
