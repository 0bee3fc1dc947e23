ram(device=LA7132)
time a => q
0    L    L
