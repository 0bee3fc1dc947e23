time D clk _OE => Q _Q
0    H L   L      U U
100  H H   L      U U
110  H H   L      H L
# Off after 10 ns.
200  H H   H      H L
209  H H   H      H L
210  H H   H      Z Z
# Clocked while off: nothing shows.
300  L L   H      Z Z
400  L H   H      Z Z
410  L H   H      Z Z
# On: what was stored meanwhile comes out.
500  L H   L      Z Z
509  L H   L      Z Z
510  L H   L      L H
# The same with an undefined enable.
600  H L   U      L H
609  H L   U      L H
610  H L   U      U U
700  H H   U      U U
710  H H   U      U U
800  H H   L      U U
809  H H   L      U U
810  H H   L      H L
# A floating enable is undefined.
900  H H   Z      H L
910  H H   Z      U U
1000 H H   L      U U
1010 H H   L      H L
# Clock and enable in the same nanosecond.
1100 L L   H      H L
1110 L L   H      Z Z
1200 L H   L      Z Z
1209 L H   L      Z Z
1210 L H   L      L H
# The edge that comes with the disabling is stored too.
1300 H L   L      L H
1400 H H   H      L H
1410 H H   H      Z Z
1500 H H   L      Z Z
1510 H H   L      H L
