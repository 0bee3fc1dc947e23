time enable => x y
0 0 H H
10 1 L L
20 0 H H
