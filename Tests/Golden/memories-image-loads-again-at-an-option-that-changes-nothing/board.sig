# second.bin: B0 B1.
ram()
time AE AS => E  S
0    0  1     B0 B1
