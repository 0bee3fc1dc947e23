# rig/image.bin: 11 22, rig/image.prg: 02 00 (the address 0002), 33; away/image.bin: EE EE EE.
time AE AS => E  S
0    0  0     11 UUUUUUUU
10   1  2     22 33
