time D C B A _G1 _G2 ==(dT)=> all.Y            no_a.Y0 no_b.Y1 no_c.Y5 no_d.Y11 no_g1.Y12 no_g2.Y14 none.Y15
0    L L L L L   L   23       HHHHHHHHHHHHHHHL U       U       U       U        U         U         U
100  L L L L H   L   23       HHHHHHHHHHHHHHHH U       U       U       U        U         U         U
200  H L H H L   H   23       HHHHHHHHHHHHHHHH U       U       U       U        U         U         U
300  H L H H L   L   23       HHHHLHHHHHHHHHHH U       U       U       U        U         U         U
400  H L H H H   H   23       HHHHHHHHHHHHHHHH U       U       U       U        U         U         U
