# second.bin: B0 B1, over itself one further on; the word at 1 is B0.
rom(rawaddress=1)
time A => D
0    0    B0
10   1    B1
20   2    B1
