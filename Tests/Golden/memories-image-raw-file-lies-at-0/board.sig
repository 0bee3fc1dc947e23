# data.bin: 02 10 11 22 33.
time AE AS => E        S
0    0  0     02       02
10   1  1     10       10
20   4  4     33       33
30   5  5     UUUUUUUU UUUUUUUU
40   3  2     22       11
