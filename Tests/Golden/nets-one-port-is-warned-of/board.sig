time a ==(dT)=> q
0 0 3 H
