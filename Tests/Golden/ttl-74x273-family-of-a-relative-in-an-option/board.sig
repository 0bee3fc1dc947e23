# The load goes well; the run refuses it.
u(family=ALS)
time _CLR clk D  ==(dT)=> Q
0    L    L   A5 27       00
100  H    L   A5 27       00
