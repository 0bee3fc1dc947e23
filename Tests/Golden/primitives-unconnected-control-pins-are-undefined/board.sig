time a clk ==(dT)=> t_no_g.out t.out b_no_g.out b.out f_no_OE.Q f_no_clk.Q f_no_D.Q f.Q d_no_x.y0 d_no_s.y0 d.y0
0    L L   10       U          L     U          L     U         U          U        U   U         U         L
20   H H   10       U          H     U          H     U         U          U        H   U         U         H
40   L L   10       U          L     U          L     U         U          U        H   U         U         L
60   L H   10       U          L     U          L     U         U          U        L   U         U         L
80   H L   10       U          H     U          H     U         U          U        L   U         U         H
