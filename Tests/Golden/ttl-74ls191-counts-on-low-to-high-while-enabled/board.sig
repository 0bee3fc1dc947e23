time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

0    L     L   L   L     5    52       5     L      H
100  L     L   L   H     0    52       5     L      H
200  L     L   H   H     0    52       6     L      H
# held: clocks pass by
300  H     L   L   H     0    52       6     L      H
400  H     L   H   H     0    52       6     L      H
500  H     L   L   H     0    52       6     L      H
# enabling at a high or low clock is no count
600  L     L   L   H     0    52       6     L      H
700  H     L   H   H     0    52       6     L      H
800  L     L   H   H     0    52       6     L      H
900  L     L   L   H     0    52       6     L      H
# enabled and clocked at once
1000 H     L   L   H     0    52       6     L      H
1100 L     L   H   H     0    52       7     L      H
# the direction is taken at the clock
1200 L     H   L   H     0    52       7     L      H
1300 L     H   H   H     0    52       6     L      H
1400 L     L   L   H     0    52       6     L      H
1500 L     H   H   H     0    52       5     L      H
1600 L     H   L   H     0    52       5     L      H
1700 L     L   H   H     0    52       6     L      H
# turning the direction alone counts nothing
1800 L     H   H   H     0    52       6     L      H
1900 L     L   H   H     0    52       6     L      H
