time a b => Y1 Y4
0    L H    H  H
5    H H    L  L
6    U H    U  U
