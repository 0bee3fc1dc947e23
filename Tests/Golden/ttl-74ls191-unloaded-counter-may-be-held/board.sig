time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

0    H     L   L   H     5    52       UUUU  U      U
100  H     L   H   H     5    52       UUUU  U      U
200  H     L   L   H     5    52       UUUU  U      U
300  U     H   H   H     5    52       UUUU  U      U
400  H     H   L   H     5    52       UUUU  U      U
500  H     H   L   L     5    52       5     L      H
600  L     H   L   H     5    52       5     L      H
700  L     H   H   H     5    52       4     L      H
