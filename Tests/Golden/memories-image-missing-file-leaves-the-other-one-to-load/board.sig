# low.prg: 01 00 (the address 0001), A0 A1; high.bin: B0 B1.
time AE AS => E        S
0    0  0     B0       UUUUUUUU
10   1  1     B1       A0
20   2  2     UUUUUUUU A1
30   0  1     B0       A0
