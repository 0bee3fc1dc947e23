time fast slow => both one
0    L    L       LU   L
10   H    L       HL   L
# slow alone arrives in the same nanosecond.
20   H    H       HH   H
30   H    L       HL   L
# With fast it comes too late, and stays so until the next change.
40   L    H       LL   H
49   L    H       LL   H
50   H    H       HH   H
60   L    L       LH   L
70   H    L       HL   L
