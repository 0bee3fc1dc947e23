# image.bin in the working directory: EE EE EE.
time AE AS => E        S
0    0  0     UUUUUUUU UUUUUUUU
