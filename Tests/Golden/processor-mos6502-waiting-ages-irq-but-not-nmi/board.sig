# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _IRQ _NMI RDY ==(dT)=> A                rw sync D
0     EA   L   H    H    H   500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H    H    H   500      0000             H  L    EA
1600  EA   L   H    H    H   500      0100             H  L    EA
2600  EA   L   H    H    H   500      01FF             H  L    EA
3600  EA   L   H    H    H   500      01FE             H  L    EA
4600  EA   L   H    H    H   500      FFFC             H  L    EA
5600  EA   L   H    H    H   500      FFFD             H  L    EA
6600  58   L   H    H    H   500      EAEA             H  H    58
7600  EA   L   H    H    H   500      EAEB             H  L    EA
8600  EA   L   H    H    H   500      EAEB             H  H    EA
9600  EA   L   H    H    H   500      EAEC             H  L    EA
# the request comes while the processor waits, three falls before the opcode: lost
10600 EA   L   L    H    L   500      EAEC             H  H    EA
11600 EA   L   H    H    L   500      EAEC             H  H    EA
12600 EA   L   H    H    L   500      EAEC             H  H    EA
13600 EA   L   H    H    H   500      EAEC             H  H    EA
14600 EA   L   H    H    H   500      EAED             H  L    EA
# two falls before the opcode: taken
15600 EA   L   L    H    L   500      EAED             H  H    EA
16600 EA   L   H    H    L   500      EAED             H  H    EA
17600 EA   L   H    H    H   500      EAED             H  H    EA
18600 EA   L   H    H    H   500      EAED             H  L    EA
19600 EA   H   H    H    H   500      01FD             L  L    EA
20600 EA   H   H    H    H   500      01FC             L  L    ED
21600 EA   H   H    H    H   500      01FB             L  L    22
22600 00   L   H    H    H   500      FFFE             H  L    00
23600 40   L   H    H    H   500      FFFF             H  L    40
# an edge of _NMI, three falls before the opcode: it is young still, and one more instruction runs
24600 EA   L   H    L    L   500      4000             H  H    EA
25600 EA   L   H    L    L   500      4000             H  H    EA
26600 EA   L   H    L    L   500      4000             H  H    EA
27600 EA   L   H    L    H   500      4000             H  H    EA
28600 EA   L   H    L    H   500      4001             H  L    EA
29600 EA   L   H    L    H   500      4001             H  H    EA
30600 EA   L   H    L    H   500      4001             H  L    EA
31600 EA   H   H    L    H   500      01FA             L  L    40
32600 EA   H   H    L    H   500      01F9             L  L    01
33600 EA   H   H    L    H   500      01F8             L  L    26
34600 00   L   H    L    H   500      FFFA             H  L    00
35600 50   L   H    L    H   500      FFFB             H  L    50
36600 EA   L   H    L    H   500      5000             H  H    EA
