zz(delay=1)
time a => q
0 0 H
