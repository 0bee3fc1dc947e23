time AE AS => E        S
0    0  0     UUUUUUUU UUUUUUUU
