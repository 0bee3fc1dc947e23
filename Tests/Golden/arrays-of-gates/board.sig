time a ==(dT)=> q
0 0 6 L
10 1 6 H
