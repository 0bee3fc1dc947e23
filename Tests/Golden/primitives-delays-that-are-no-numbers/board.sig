time a => qt qb qf qd
0    L    L  L  U  L
10   H    H  H  H  H
20   L    L  L  H  L
