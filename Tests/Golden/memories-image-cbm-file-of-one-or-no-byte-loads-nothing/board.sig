# one.prg: 34.
time AE AS => E        S
0    34 0     UUUUUUUU UUUUUUUU
