# tail.bin: D0 D1 D2 D3 D4.
ram(rawaddress=0x7FFD)
time A => D
0    0    D0
