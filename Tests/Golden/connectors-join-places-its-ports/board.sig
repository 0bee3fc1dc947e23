# listed leaves its bit 5 to nobody.
time a    b    c  d => whole    swapped  listed   mirrored
0    A    5    LL L    A5       5A       HLULLHLL LHLH
10   1    0    LL L    10       01       LLULLLHL HLLL
20   8    0    LL L    80       08       HLULLLLL LLLH
30   2    0    LH L    20       02       LLUHLHLL LHLL
40   4    F    HL H    4F       F4       LHULHLLH LLHL
50   C    3    HH H    C3       3C       HHUHHLLH LLHH
60   ULLH HLLU LU L    ULLHHLLU HLLUULLH ULUULLHL HLLU
70   0    0    LL L    00       00       LLULLLLL LLLL
