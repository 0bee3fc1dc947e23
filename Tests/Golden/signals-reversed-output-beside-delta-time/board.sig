# Beside a delta time each output takes the reversal of its right neighbour, and the last one none.
time a ==(dT)=> q ~r
0  1 1 8 1
10 3 1 C 3
