# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _NMI _RES ==(dT)=> A                rw sync D
0     EA   L   H    H    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H    H    500      0000             H  L    EA
1600  EA   L   H    H    500      0100             H  L    EA
2600  EA   L   H    H    500      01FF             H  L    EA
3600  EA   L   H    H    500      01FE             H  L    EA
4600  EA   L   H    H    500      FFFC             H  L    EA
5600  EA   L   H    H    500      FFFD             H  L    EA
6600  02   L   H    H    500      EAEA             H  H    02
7600  EA   L   H    H    500      EAEB             H  L    EA
8600  EA   L   H    H    500      FFFF             H  L    EA
9600  EA   L   L    H    500      FFFF             H  L    EA
10600 EA   L   H    H    500      FFFF             H  L    EA
11600 EA   L   H    H    500      FFFF             H  L    EA
12600 EA   L   H    L    500      FFFF             H  L    EA
13600 EA   L   H    L    500      FFFF             H  L    EA
# _NMI low across the reset is an edge behind it
14600 EA   L   L    H    500      FFFF             H  L    EA
15600 EA   L   L    H    500      0000             H  L    EA
16600 EA   L   L    H    500      0100             H  L    EA
17600 EA   L   L    H    500      01FF             H  L    EA
18600 EA   L   L    H    500      01FE             H  L    EA
19600 EA   L   L    H    500      FFFC             H  L    EA
20600 EA   L   L    H    500      FFFD             H  L    EA
21600 EA   L   L    H    500      EAEA             H  H    EA
22600 EA   L   L    H    500      EAEA             H  L    EA
23600 EA   H   L    H    500      01FD             L  L    EA
24600 EA   H   L    H    500      01FC             L  L    EA
25600 EA   H   L    H    500      01FB             L  L    26
26600 00   L   L    H    500      FFFA             H  L    00
27600 50   L   L    H    500      FFFB             H  L    50
28600 EA   L   L    H    500      5000             H  H    EA
29600 EA   L   L    H    500      5001             H  L    EA
