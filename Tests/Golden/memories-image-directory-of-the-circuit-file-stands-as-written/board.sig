# image.bin: 11 22.
time A => D
0    0    11
10   1    22
20   2    UUUUUUUU
