# rig/parts/image.bin and image.bin: EE EE EE.
time A => D
0    0    UUUUUUUU
