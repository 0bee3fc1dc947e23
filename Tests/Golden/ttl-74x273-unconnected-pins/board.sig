time _CLR clk D  ==(dT)=> no_clr.Q no_clk.Q no_d.Q   whole.Q
0    L    L   A5 27       UUUUUUUU 00       00       00
100  H    L   A5 27       UUUUUUUU 00       00       00
200  H    H   A5 27       UUUUUUUU 00       UUUUUUUU A5
300  L    H   A5 27       UUUUUUUU 00       00       00
