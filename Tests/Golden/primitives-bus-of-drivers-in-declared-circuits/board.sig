time d1 d2 _g1 _g2 ==(dT)=> bus  spoilt alone
0    3  C  L   H   10       3    UUUU   3
20   3  C  H   L   10       C    UUUU   UUUU
40   3  C  H   H   10       ZZZZ UUUU   UUUU
60   9  C  L   L   10       UUUU UUUU   9
80   6  C  L   H   10       6    UUUU   6
