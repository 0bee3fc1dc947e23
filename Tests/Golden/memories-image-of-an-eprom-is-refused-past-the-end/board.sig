# tail.bin: D0 D1 D2 D3 D4.
time A    => D
0    1FFD    UUUUUUUU
10   1FFE    D0
20   1FFF    D1
30   0       UUUUUUUU
40   1       UUUUUUUU
50   1FFE    D0
60   2       UUUUUUUU
