time a => q
0  0 U
9  0 U
10 0 L
20 1 L
29 1 L
30 1 H
h(delay=7) behind the list  # where the line stands has no effect
