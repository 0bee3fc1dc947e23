time enable => out
0 0 H
10 1 L
20 0 H
30 1 L
40 1 L
