time a ==(dT)=> q
0 H 4294967296 L
