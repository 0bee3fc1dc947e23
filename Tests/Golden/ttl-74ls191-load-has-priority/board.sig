time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

0    L     L   L   L     5    52       5     L      H
# the data shine through as long as the load holds
100  L     L   L   L     A    52       A     L      H
# no count under it, neither up nor down
200  L     L   H   L     3    52       3     L      H
300  L     H   L   L     3    52       3     L      H
400  L     H   H   L     3    52       3     L      H
500  L     H   L   H     F    52       3     L      H
600  L     H   H   H     F    52       2     L      H
# it waits for no clock and no enable
700  H     H   H   L     9    52       9     L      H
800  H     H   L   L     6    52       6     L      H
900  H     H   L   H     F    52       6     L      H
# released with the clock: counts from what was loaded
1000 L     L   L   L     C    52       C     L      H
1100 L     L   H   H     0    52       D     L      H
# pulled with the clock: no count
1200 L     L   L   H     0    52       D     L      H
1300 L     L   H   L     4    52       4     L      H
1400 L     L   L   H     0    52       4     L      H
# all bits
1500 L     L   L   L     1    52       1     L      H
1600 L     L   L   L     2    52       2     L      H
1700 L     L   L   L     4    52       4     L      H
1800 L     L   L   L     8    52       8     L      H
