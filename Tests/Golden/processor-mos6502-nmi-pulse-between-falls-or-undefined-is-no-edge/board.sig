# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _NMI ==(dT)=> A                rw sync D
0     EA   L   H    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H    500      0000             H  L    EA
1600  EA   L   H    500      0100             H  L    EA
2600  EA   L   H    500      01FF             H  L    EA
3600  EA   L   H    500      01FE             H  L    EA
4600  EA   L   H    500      FFFC             H  L    EA
5600  EA   L   H    500      FFFD             H  L    EA
6600  EA   L   H    500      EAEA             H  H    EA
6700  EA   L   L    500      EAEA             H  H    EA
6800  EA   L   H    500      EAEA             H  H    EA
7600  EA   L   H    500      EAEB             H  L    EA
7700  EA   L   L    500      EAEB             H  L    EA
7800  EA   L   H    500      EAEB             H  L    EA
8600  EA   L   H    500      EAEB             H  H    EA
9600  EA   L   U    500      EAEC             H  L    EA
10600 EA   L   U    500      EAEC             H  H    EA
11600 EA   L   H    500      EAED             H  L    EA
12600 EA   L   Z    500      EAED             H  H    EA
13600 EA   L   Z    500      EAEE             H  L    EA
14600 EA   L   Z    500      EAEE             H  H    EA
15600 EA   L   X    500      EAEF             H  L    EA
16600 EA   L   X    500      EAEF             H  H    EA
17600 EA   L   X    500      EAF0             H  L    EA
# from X to low is an edge
18600 EA   L   L    500      EAF0             H  H    EA
19600 EA   L   L    500      EAF1             H  L    EA
20600 EA   L   L    500      EAF1             H  H    EA
21600 EA   L   L    500      EAF1             H  L    EA
22600 EA   H   L    500      01FD             L  L    EA
23600 EA   H   L    500      01FC             L  L    F1
24600 EA   H   L    500      01FB             L  L    26
25600 00   L   L    500      FFFA             H  L    00
26600 50   L   L    500      FFFB             H  L    50
27600 EA   L   L    500      5000             H  H    EA
