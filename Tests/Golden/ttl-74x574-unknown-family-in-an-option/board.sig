# The load goes well; the run refuses it.
u(family=XYZ)
time clk _OE D  ==(dT)=> Q
0    L   L   A5 28       UUUUUUUU
100  H   L   A5 28       A5
