# second.bin: B0 B1.
time AE AS => E  S
0    0  1     B0 B1
10   1  0     B1 B0
