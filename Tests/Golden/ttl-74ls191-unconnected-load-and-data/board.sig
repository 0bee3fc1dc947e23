time _CTEN D_U CLK _LOAD DCBA ==(dT)=> no_load.QDCBA no_load.MAXMIN no_load._RCO no_data.QDCBA no_data.MAXMIN no_data._RCO whole.QDCBA whole.MAXMIN whole._RCO
0    H     L   L   L     F    52       UUUU          U              U            UUUU          U              U            F           H            H
100  H     L   L   H     0    52       UUUU          U              U            UUUU          U              U            F           H            H
200  H     L   H   H     0    52       UUUU          U              U            UUUU          U              U            F           H            H
300  H     H   H   L     5    52       UUUU          U              U            UUUU          U              U            5           L            H
