time a ==(dT)=> q
0 H 5ns L
