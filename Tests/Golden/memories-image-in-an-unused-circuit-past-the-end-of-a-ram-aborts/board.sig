# image.bin: 11 22.
time A => D
0    0    11
