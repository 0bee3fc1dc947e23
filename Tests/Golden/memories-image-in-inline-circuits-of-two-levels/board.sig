# image.bin: 11 22.
time A => D        I
0    0    11       11
10   1    22       22
20   2    UUUUUUUU UUUUUUUU
