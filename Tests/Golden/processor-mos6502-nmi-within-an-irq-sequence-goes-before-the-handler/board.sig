# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _IRQ _NMI ==(dT)=> A                rw sync D
0     EA   L   H    H    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H    H    500      0000             H  L    EA
1600  EA   L   H    H    500      0100             H  L    EA
2600  EA   L   H    H    500      01FF             H  L    EA
3600  EA   L   H    H    500      01FE             H  L    EA
4600  EA   L   H    H    500      FFFC             H  L    EA
5600  EA   L   H    H    500      FFFD             H  L    EA
6600  58   L   H    H    500      EAEA             H  H    58
7600  EA   L   H    H    500      EAEB             H  L    EA
8600  EA   L   H    H    500      EAEB             H  H    EA
9600  EA   L   H    H    500      EAEC             H  L    EA
10600 EA   L   L    H    500      EAEC             H  H    EA
11600 EA   L   L    H    500      EAED             H  L    EA
12600 EA   L   L    H    500      EAED             H  H    EA
13600 EA   L   L    H    500      EAED             H  L    EA
14600 EA   H   L    L    500      01FD             L  L    EA
15600 EA   H   L    L    500      01FC             L  L    ED
16600 EA   H   L    L    500      01FB             L  L    22
17600 00   L   L    L    500      FFFE             H  L    00
18600 40   L   L    L    500      FFFF             H  L    40
19600 EA   L   L    L    500      4000             H  H    EA
20600 EA   L   L    L    500      4000             H  L    EA
21600 EA   H   L    L    500      01FA             L  L    40
22600 EA   H   L    L    500      01F9             L  L    00
23600 EA   H   L    L    500      01F8             L  L    26
24600 00   L   L    L    500      FFFA             H  L    00
25600 50   L   L    L    500      FFFB             H  L    50
26600 EA   L   L    L    500      5000             H  H    EA
27600 EA   L   L    L    500      5001             H  L    EA
