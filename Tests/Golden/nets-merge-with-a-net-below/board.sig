time a ==(dT)=> q p
0 0 6 H L
10 1 6 L H
