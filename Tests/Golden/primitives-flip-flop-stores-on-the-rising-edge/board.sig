# Nothing is stored before the first edge.
time D clk _OE => Q _Q
0    L L   L      U U
10   L L   L      U U
# The edge stores the data, and they come out after 10 ns.
100  H H   L      U U
109  H H   L      U U
110  H H   L      H L
# Data alone and the falling edge do nothing.
200  L H   L      H L
210  L H   L      H L
300  L L   L      H L
310  L L   L      H L
# The other level.
400  L H   L      H L
409  L H   L      H L
410  L H   L      L H
# Data that change together with the edge: the new ones.
500  L L   L      L H
600  H H   L      L H
609  H H   L      L H
610  H H   L      H L
# Undefined data are stored as such, a floating input is undefined.
700  U L   L      H L
710  U L   L      H L
800  U H   L      H L
810  U H   L      U U
900  H L   L      U U
910  H L   L      U U
1000 H H   L      U U
1010 H H   L      H L
1100 Z L   L      H L
1200 Z H   L      H L
1210 Z H   L      U U
1300 L L   L      U U
1400 L H   L      U U
1410 L H   L      L H
