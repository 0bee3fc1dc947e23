# second.bin: B0 B1.
ram(rawaddress=0)
time A               _WE => D
0    0               H      B0
10   LLLLLLLLLLLLLLU L      UUUUUUUU
20   1               H      B1
