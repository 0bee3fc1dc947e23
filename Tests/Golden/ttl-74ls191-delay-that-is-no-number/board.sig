time _CTEN D_U CLK _LOAD DCBA => QDCBA MAXMIN _RCO
0    L     L   L   L     E       E     L      H
1    L     L   L   H     0       E     L      H
2    L     L   H   H     0       F     H      H
3    L     L   L   H     0       F     H      L
4    L     L   H   H     0       0     L      H
