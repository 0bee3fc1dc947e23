# cards/image.bin: 11 22; image.bin: EE EE EE.
time A B => D        E
0    0 1    11       22
10   1 0    22       11
20   2 1    UUUUUUUU 22
