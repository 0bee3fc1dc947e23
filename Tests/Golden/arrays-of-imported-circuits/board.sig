time a1 a0 b1 b0 cin ==(dT)=> cout s1 s0
0   0 0 0 0 0 30 L L L
100 0 1 0 1 0 30 L H L
200 1 1 0 1 0 30 H L L
300 1 1 1 1 1 30 H H H
400 1 0 0 1 1 30 H L L
