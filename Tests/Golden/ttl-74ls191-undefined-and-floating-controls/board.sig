time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

0    L     L   L   L     5    52       5     L      H
100  L     L   L   H     0    52       5     L      H
# enable: no count, and no telling of the carry
200  U     L   L   H     0    52       5     L      U
300  U     L   H   H     0    52       5     L      U
400  Z     L   L   H     0    52       5     L      U
500  Z     L   H   H     0    52       5     L      U
600  L     L   H   H     0    52       5     L      H
700  L     L   L   H     0    52       5     L      H
# load: not low is no load
800  L     L   L   U     0    52       5     L      H
900  L     L   H   U     0    52       6     L      H
1000 L     L   L   Z     0    52       6     L      H
1100 L     L   H   Z     0    52       7     L      H
1200 L     L   L   H     0    52       7     L      H
# clock: no count, and no telling of the carry
1300 L     L   U   H     0    52       7     L      U
1400 L     L   H   H     0    52       7     L      H
1500 L     L   U   H     0    52       7     L      U
1600 L     L   L   H     0    52       7     L      H
1700 L     L   Z   H     0    52       7     L      U
1800 L     L   H   H     0    52       7     L      H
1900 L     L   X   H     0    52       7     L      U
2000 L     L   L   H     0    52       7     L      H
# direction: no telling of the end; the value stays until the clock
2100 L     U   L   H     0    52       7     U      U
2200 L     L   L   H     0    52       7     L      H
2300 L     Z   L   H     0    52       7     U      U
2400 L     L   L   H     0    52       7     L      H
2500 L     L   H   H     0    52       8     L      H
2600 L     U   H   H     0    52       8     U      U
2700 L     U   L   H     0    52       8     U      U
2800 L     U   H   H     0    52       UUUU  U      U
2900 L     L   H   H     0    52       UUUU  U      U
# load mends it
3000 L     L   H   L     F    52       F     H      H
3100 L     L   L   H     0    52       F     H      L
# a load of undefined bits
3200 H     L   L   L     HHUH 52       HHUH  U      U
3300 H     L   L   L     ZHHH 52       UHHH  U      U
3400 L     L   L   L     3    52       3     L      H
