# big.bin: each of the first 8192 bytes is the low byte of its address plus 37 times the high one; then AA BB CC.
time A    => D
0    0       00
10   1       01
20   2       02
30   1FFF    7A
40   1FFE    79
50   1000    50
