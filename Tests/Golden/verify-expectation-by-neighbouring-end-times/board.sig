# The first vector ends behind the last one: at its end time nothing is expected.
time a ==(dT)=> q
0  0 50 L
10 1 5  L
20 0 0  L
