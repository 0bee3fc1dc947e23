time _CTEN D_U CLK _LOAD DCBA ==(dT)=> no_cten.QDCBA no_cten.MAXMIN no_cten._RCO no_du.QDCBA no_du.MAXMIN no_du._RCO no_clk.QDCBA no_clk.MAXMIN no_clk._RCO whole.QDCBA whole.MAXMIN whole._RCO
0    L     L   L   L     F    52       F             H              U            F           U            U          F            H             U           F           H            L
100  L     L   L   H     0    52       F             H              U            F           U            U          F            H             U           F           H            L
200  L     L   H   H     0    52       F             H              U            UUUU        U            U          F            H             U           0           L            H
300  L     L   L   L     5    52       5             L              U            5           U            U          5            L             U           5           L            H
