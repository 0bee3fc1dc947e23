time a ==(dT)=> q
0 0 3 H
10 1 3 L
