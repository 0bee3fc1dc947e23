# The stimuli have scheduled ff for 10 ns behind each edge before the option holds; it then looks 4 ns back, so that
# it takes data that come 3 ns behind the clock.
ff(delay=4)
time D clk _OE => Q _Q
0    L L   L      U U
10   L L   L      U U
100  L H   L      U U
103  H H   L      U U
109  H H   L      U U
110  H H   L      H L
200  H L   L      H L
300  H H   L      H L
303  L H   L      H L
309  L H   L      H L
310  L H   L      L H
