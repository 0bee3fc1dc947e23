time d    _g   d0 _g0 ==(dT)=> bus  seen
0    5    0    L  H   3        LHLH LHLH
10   A    0    L  H   3        HLHL HLHL
# Some or all bits float. Behind a plain output they are undefined.
20   A    3    L  H   3        HLZZ HLUU
30   A    6    L  H   3        HZZL HUUL
40   A    F    L  H   3        ZZZZ UUUU
# The second driver of bit 0.
50   A    F    H  L   3        ZZZH UUUH
60   A    1    H  L   3        HLHH HLHH
# Both: contention on that bit alone.
70   A    0    H  L   3        HLHU HLHU
80   B    0    H  L   3        HLHU HLHU
90   B    0    H  H   3        HLHH HLHH
# Undefined data and gates.
100  HLUH 0    H  H   3        HLUH HLUH
110  HLHH LLUL H  H   3        HLUH HLUH
120  C    0    H  H   3        HHLL HHLL
