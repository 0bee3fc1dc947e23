time u.x u.s1 u.s0 ==(dT)=> u.y2
0    L   H    L          10 L
20   L   H    X          10 H
