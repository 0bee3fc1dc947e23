# The stimuli have scheduled g for 3 ns behind each edge before the option holds; it then looks 7 ns back.
g(delay=7)
time a => q
0  0 U
10 1 U
12 1 U
13 1 H
20 0 H
22 0 H
23 0 L
30 0 L
