# images/low.bin: A0 A1.
time AE AS => E        S
0    0  0     UUUUUUUU A0
10   1  1     UUUUUUUU A1
