time clk _OE D  ==(dT)=> no_clk.Q no_clk.dff[0].Q no_oe.Q  no_oe.dff[0].Q no_d.Q   no_d.dff[0].Q whole.Q  whole.dff[0].Q
0    L   H   A5 28       UUUUUUUU Z               UUUUUUUU U              UUUUUUUU Z             UUUUUUUU Z
100  H   H   A5 28       UUUUUUUU Z               UUUUUUUU U              UUUUUUUU Z             UUUUUUUU Z
200  H   L   A5 28       UUUUUUUU U               UUUUUUUU U              UUUUUUUU U             A5       H
300  H   H   A5 28       UUUUUUUU Z               UUUUUUUU U              UUUUUUUU Z             UUUUUUUU Z
