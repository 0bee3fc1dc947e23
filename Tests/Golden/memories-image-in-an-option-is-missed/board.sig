# second.bin: B0 B1.
rom(rawfile=gone.bin)
time A => D
0    0    B0
10   1    B1
