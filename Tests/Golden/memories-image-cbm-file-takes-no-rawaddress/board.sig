# data.prg: 02 10 (the address 1002), 11 22 33.
time AE   AS   => E        S
0    0005 0005    UUUUUUUU UUUUUUUU
10   1002 1002    11       11
