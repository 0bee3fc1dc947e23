time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

# Without a direction there is nothing to count with, so an undefined value is no matter.
0    L     Z   L   L     5    52       5     U      U
100  L     Z   L   H     0    52       5     U      U
200  L     Z   H   H     0    52       UUUU  U      U
300  L     U   L   H     0    52       UUUU  U      U
400  L     U   H   H     0    52       UUUU  U      U
500  H     L   L   H     0    52       UUUU  U      U
600  L     L   L   L     9    52       9     L      H
700  L     L   L   H     0    52       9     L      H
800  L     L   H   H     0    52       A     L      H
