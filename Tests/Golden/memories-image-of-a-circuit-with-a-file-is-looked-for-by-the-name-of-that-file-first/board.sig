# cards/image.bin: 11 22; rig/cards/image.bin: EE EE EE.
time A => D
0    0    11
10   1    22
20   2    UUUUUUUU
