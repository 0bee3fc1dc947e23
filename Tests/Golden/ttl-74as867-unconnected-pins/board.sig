time S1 S0 _ENT _ENP CLK HA ==(dT)=> no_s0.QHA no_s1.QHA no_ent.QHA no_enp.QHA no_clk.QHA no_data.QHA no_data._RCO whole.QHA whole._RCO
0    L  L  L    L    L   00 17       UUUUUUUU  UUUUUUUU  UUUUUUUU   UUUUUUUU   UUUUUUUU   UUUUUUUU    U            UUUUUUUU  U
100  L  L  H    L    L   A5 17       UUUUUUUU  UUUUUUUU  UUUUUUUU   UUUUUUUU   UUUUUUUU   00          H            00        H
200  H  L  H    L    L   A5 17       UUUUUUUU  UUUUUUUU  UUUUUUUU   UUUUUUUU   UUUUUUUU   00          H            00        H
300  H  L  H    L    H   A5 17       UUUUUUUU  UUUUUUUU  UUUUUUUU   UUUUUUUU   UUUUUUUU   UUUUUUUU    U            A5        H
