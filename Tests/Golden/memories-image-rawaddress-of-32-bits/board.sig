# one.bin: C3.
time AE   AS   => E        S
0    0    0       UUUUUUUU UUUUUUUU
10   1FFF 7FFF    UUUUUUUU UUUUUUUU
