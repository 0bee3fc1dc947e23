# From nothing to high is no edge.
time clk _OE D  ==(dT)=> Q
0    H   L   A5 28       UUUUUUUU
100  L   L   A5 28       UUUUUUUU
200  H   L   A5 28       A5
