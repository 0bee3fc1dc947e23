# tail.bin: D0 D1 D2 D3 D4.
time A    => D
0    7FFA    UUUUUUUU
10   7FFB    D0
20   7FFF    D4
30   0       UUUUUUUU
