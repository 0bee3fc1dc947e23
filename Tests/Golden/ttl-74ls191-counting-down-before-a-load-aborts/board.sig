time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

0    L     H   L   H     5    52       UUUU  U      U
100  L     H   H   H     5    52       UUUU  U      U
200  L     H   L   H     5    52       UUUU  U      U
