time S1 S0 _ENT _ENP CLK HA => QHA _RCO
0    L  L  L    L    L   00    00  H
1    L  H  L    L    L   00    00  L
2    L  H  L    L    H   00    FF  H
3    H  L  L    L    L   3C    FF  H
4    H  L  L    L    H   3C    3C  H
