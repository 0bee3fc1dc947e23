time a b ==(dT)=> q
0 0 0 3 U
10 0 1 3 U
20 1 1 3 U
