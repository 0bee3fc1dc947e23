time a b ==(dT)=> p q
0 0 U 3 H U
10 0 1 3 H L
20 1 1 3 L L
