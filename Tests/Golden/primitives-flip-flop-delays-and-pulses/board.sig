# Data and clock for one nanosecond.
time D clk => q0 q4 q20
0    H L      U  U  U
20   H L      U  U  U
99   L L      U  U  U
100  H H      H  U  U
101  L L      H  U  U
103  L L      H  U  U
104  L L      H  H  U
119  L L      H  H  U
120  L L      H  H  H
# The other level.
200  L H      L  H  H
201  H L      L  H  H
203  H L      L  H  H
204  H L      L  L  H
219  H L      L  L  H
220  H L      L  L  L
# Two edges, 2 ns apart.
300  H H      H  L  L
301  H L      H  L  L
302  L H      L  L  L
303  L L      L  L  L
304  L L      L  H  L
305  L L      L  H  L
306  L L      L  L  L
319  L L      L  L  L
320  L L      L  L  H
321  L L      L  L  H
322  L L      L  L  L
