# second.bin: B0 B1.
time A => D
0    1    UUUUUUUU
29   1    UUUUUUUU
30   0    B1
59   0    B1
60   0    B0
