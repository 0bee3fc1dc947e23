time a => qt qb qf qd
0    L    U  U  U  U
10   L    L  L  U  L
100  H    L  L  U  L
102  H    L  L  U  L
103  H    H  L  U  L
109  H    H  L  U  L
110  H    H  H  H  H
