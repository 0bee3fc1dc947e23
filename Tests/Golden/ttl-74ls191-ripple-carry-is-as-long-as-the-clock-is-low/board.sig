time _CTEN D_U CLK _LOAD DCBA => QDCBA MAXMIN _RCO
0    L     L   L   L     E       UUUU  U      U
51   L     L   L   L     E       UUUU  U      U
52   L     L   L   L     E       E     L      H
100  L     L   L   H     0       E     L      H
# the clock comes to fifteen
200  L     L   H   H     0       E     L      H
251  L     L   H   H     0       E     L      H
252  L     L   H   H     0       F     H      H
# low for seven nanoseconds
300  L     L   L   H     0       F     H      H
307  L     L   H   H     0       F     H      H
351  L     L   H   H     0       F     H      H
352  L     L   H   H     0       F     H      L
358  L     L   H   H     0       F     H      L
359  L     L   H   H     0       0     L      H
# two clocks of one nanosecond each, two apart
400  L     L   L   H     0       0     L      H
500  L     L   H   H     0       0     L      H
501  L     L   L   H     0       0     L      H
502  L     L   H   H     0       0     L      H
503  L     L   L   H     0       0     L      H
551  L     L   L   H     0       0     L      H
552  L     L   L   H     0       1     L      H
553  L     L   L   H     0       1     L      H
554  L     L   L   H     0       2     L      H
# the direction turns with the clock, and back behind it
600  L     H   H   H     0       2     L      H
601  L     L   H   H     0       2     L      H
652  L     L   H   H     0       1     L      H
653  L     L   H   H     0       1     L      H
# held with the clock; enabled one nanosecond behind it is too late
700  L     L   L   H     0       1     L      H
800  H     L   H   H     0       1     L      H
801  L     L   H   H     0       1     L      H
852  L     L   H   H     0       1     L      H
853  L     L   H   H     0       1     L      H
# loaded for one nanosecond
900  L     L   H   L     8       1     L      H
901  L     L   H   H     0       1     L      H
951  L     L   H   H     0       1     L      H
952  L     L   H   H     0       8     L      H
953  L     L   H   H     0       8     L      H
