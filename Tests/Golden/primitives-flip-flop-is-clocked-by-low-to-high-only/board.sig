# High from the start isn't an edge, neither is any way to H through U or Z.
time D clk _OE ==(dT)=> Q _Q
0    H H   L   10       U U
20   H U   L   10       U U
40   H H   L   10       U U
60   H Z   L   10       U U
80   H H   L   10       U U
# From low it is one.
100  H L   L   10       U U
120  H H   L   10       H L
# Low, undefined, high.
140  L L   L   10       H L
160  L U   L   10       H L
180  L H   L   10       H L
# Low, floating, high.
200  L L   L   10       H L
220  L Z   L   10       H L
240  L H   L   10       H L
# And by way of low again.
260  L U   L   10       H L
280  L L   L   10       H L
300  L H   L   10       L H
