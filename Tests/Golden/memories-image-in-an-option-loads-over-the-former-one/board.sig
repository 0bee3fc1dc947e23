# first.bin: A0 A1 A2 A3, second.bin: B0 B1.
rom(rawfile=second.bin)
ram(rawfile=second.bin)
time AE AS => E  S
0    0  3     B0 A3
10   1  2     B1 A2
20   2  1     A2 B1
30   3  0     A3 B0
