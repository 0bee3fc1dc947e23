time _CLR CLK D ==(dT)=> no_clr.2Q no_clk.2Q no_1d.1Q no_1d.2Q no_1d.6Q
0    L    L   H 35       U         L         L        L        L
100  H    L   H 35       U         U         L        L        L
200  H    H   H 35       U         U         U        H        H
300  H    L   L 35       U         U         U        H        H
400  H    H   L 35       U         U         U        L        L
500  L    H   H 35       U         L         L        L        L
