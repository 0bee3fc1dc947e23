k(value=9)
time idle => q
0    L       5
100  H       5
