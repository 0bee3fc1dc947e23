# rig/images/low/image.bin: 11 22, common/image.bin: 33 44.
time AE AS => E        S
0    0  0     11       33
10   1  1     22       44
20   2  2     UUUUUUUU UUUUUUUU
