# tail.bin: D0 D1 D2 D3 D4.
time A => D
0    0    UUUUUUUU
