# one.bin: C3.
time AE AS => E        S
0    0  0     C3       C3
10   1  1     UUUUUUUU UUUUUUUU
