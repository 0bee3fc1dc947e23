# second.bin: B0 B1.
time A => D
0    0    B0
