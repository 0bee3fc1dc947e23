# second.bin: B0 B1.
rom(rawaddress=0)
time A => D
0    0    B0
10   1    B1
