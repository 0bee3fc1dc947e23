# first.bin: A0 A1 A2 A3, second.bin: B0 B1.
rom(rawfile=second.bin)
rom(rawaddress=2)
time A => D
0    0    B0
10   1    B1
20   2    B0
30   3    B1
