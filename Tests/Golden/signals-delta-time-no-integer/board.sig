time a ==(dT)=> q
0 H HL L
