ram(device)
time a => q
0    L    L
