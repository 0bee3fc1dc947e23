# tail.bin: D0 D1 D2 D3 D4.
time A    => D
0    1FFA    UUUUUUUU
10   1FFB    D0
20   1FFF    D4
30   0       UUUUUUUU
