time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

# at fifteen: MAXMIN when up, _RCO only with the clock low and enabled
0    L     L   L   L     F    52       F     H      L
100  L     L   L   H     0    52       F     H      L
200  H     L   L   H     0    52       F     H      H
300  H     L   H   H     0    52       F     H      H
400  H     H   H   H     0    52       F     L      H
500  H     H   L   H     0    52       F     L      H
600  L     H   L   H     0    52       F     L      H
# at zero: when down
700  L     H   L   L     0    52       0     H      L
800  L     H   L   H     0    52       0     H      L
900  H     H   L   H     0    52       0     H      H
1000 H     H   H   H     0    52       0     H      H
1100 H     L   H   H     0    52       0     L      H
1200 H     L   L   H     0    52       0     L      H
1300 L     L   L   H     0    52       0     L      H
# elsewhere never
1400 L     L   L   L     7    52       7     L      H
1500 L     H   L   L     7    52       7     L      H
1600 L     H   L   L     1    52       1     L      H
1700 L     L   L   L     E    52       E     L      H
1800 L     L   L   H     0    52       E     L      H
# up from fourteen
1900 L     L   H   H     0    52       F     H      H
2000 L     L   L   H     0    52       F     H      L
2100 L     L   H   H     0    52       0     L      H
2200 L     L   L   H     0    52       0     L      H
