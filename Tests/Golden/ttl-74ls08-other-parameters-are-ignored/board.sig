time a b => u.Y1 v.Y1
0    H H    U    U
4    H H    U    U
5    H H    U    H
12   H H    U    H
13   H H    H    H
20   L H    H    H
25   L H    H    L
32   L H    H    L
33   L H    L    L
