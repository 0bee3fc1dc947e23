time _CTEN D_U CLK _LOAD DCBA ==(dT)=> QDCBA MAXMIN _RCO

0    L     L   L   L     HLUL 52       HLUL  U      U
100  L     L   L   H     5    52       HLUL  U      U
200  L     L   H   H     5    52       HLUL  U      U
