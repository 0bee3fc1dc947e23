time B => D
0    0    U
