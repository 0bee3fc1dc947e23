# image.bin: 11 22.
card(rawfile=gone.bin)
time A => D
0    0    11
