# second.bin: B0 B1.
rom(rawfile=second.bin, rawaddress=3)
time A => D
0    2    UUUUUUUU
10   3    B0
20   4    B1
30   5    UUUUUUUU
