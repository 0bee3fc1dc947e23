time a => joined taken low tied
0    1    1      1     H   8
10   2    2      2     L   4
20   C    C      C     L   3
30   5    5      5     H   A
