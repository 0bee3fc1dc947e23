time a        => hi   alone mirrored swapped  listed twice bit same
0    A5          A    A     A5       5A       HLHL   HHH   H   H
10   01          0    0     80       10       LLLL   HLH   H   H
20   80          8    8     01       08       HLLL   LHL   L   L
30   12          1    1     48       21       LLLH   LLL   L   L
40   C3          C    C     C3       3C       HLLH   HHH   H   H
50   HLLUULLL    HLLU HLLU  LLLUULLH ULLLHLLU HULL   LHL   L   L
60   LLLLLUHU    LLLL LLLL  UHULLLLL LUHULLLL LLUH   ULU   U   U
70   0F          0    0     F0       F0       LHHH   HLH   H   H
