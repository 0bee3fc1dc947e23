h(delay=5)
h(delay=7, fast)
time a => q
0  0 U
8  0 U
9  0 U
10 0 L
