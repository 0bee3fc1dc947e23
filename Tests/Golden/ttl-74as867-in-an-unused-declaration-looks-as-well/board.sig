time a ==(dT)=> q
0    L 3        H
20   H 3        L
