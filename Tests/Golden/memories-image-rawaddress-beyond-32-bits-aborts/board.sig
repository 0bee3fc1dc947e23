# one.bin: C3.
time A => D
0    0    UUUUUUUU
