# low.prg: 10 00 (the address 0010), A0 A1 A2 A3 A4; high.bin: B0 B1.
time AE AS => E        S
0    10 14    A0       A4
10   11 13    A1       B1
20   12 12    B0       B0
30   13 11    B1       A1
40   14 10    A4       A0
50   15 F     UUUUUUUU UUUUUUUU
