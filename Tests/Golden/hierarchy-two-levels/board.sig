time p q ==(dT)=> sum carry
0   0 0 5 L L
10  0 1 5 H L
20  1 0 5 H L
30  1 1 4 H H  # the sum is still the former one
40  1 1 0 L H
50  U 1 5 U U
60  U 0 5 U L
