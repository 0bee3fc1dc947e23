# From the start to the end.
time idle => usual.out full.out low.out high.out one.out two.out zero.out most.out odd.out   wide.out
0    L       HHHHHHHH  HHHH     LLLH    HLLL     H       L       LLLLLLLL HHHHHHHH HLHLHLHLH LHHHHLHLHLHHLHHLHHHHHLHHHLHHHH
100  H       HHHHHHHH  HHHH     LLLH    HLLL     H       L       LLLLLLLL HHHHHHHH HLHLHLHLH LHHHHLHLHLHHLHHLHHHHHLHHHLHHHH
