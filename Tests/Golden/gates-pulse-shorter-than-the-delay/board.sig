# A pulse of 2 ns comes out of a gate of 5 ns.
time a => q
0  0 U
10 1 H
12 0 H
14 0 H
15 0 L
16 0 L
17 0 H
