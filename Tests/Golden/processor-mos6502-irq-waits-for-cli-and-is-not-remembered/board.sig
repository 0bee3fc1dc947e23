# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _IRQ ==(dT)=> A                rw sync D
0     EA   L   L    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   L    500      0000             H  L    EA
1600  EA   L   L    500      0100             H  L    EA
2600  EA   L   L    500      01FF             H  L    EA
3600  EA   L   L    500      01FE             H  L    EA
4600  EA   L   L    500      FFFC             H  L    EA
5600  EA   L   L    500      FFFD             H  L    EA
# low since power-on, with I set
6600  EA   L   L    500      EAEA             H  H    EA
7600  EA   L   L    500      EAEB             H  L    EA
8600  EA   L   L    500      EAEB             H  H    EA
9600  EA   L   H    500      EAEC             H  L    EA
10600 58   L   H    500      EAEC             H  H    58
# I is cleared, but the request is gone
11600 EA   L   H    500      EAED             H  L    EA
12600 EA   L   H    500      EAED             H  H    EA
13600 EA   L   H    500      EAEE             H  L    EA
14600 78   L   H    500      EAEE             H  H    78
# SEI, then low again
15600 EA   L   L    500      EAEF             H  L    EA
16600 EA   L   L    500      EAEF             H  H    EA
17600 EA   L   L    500      EAF0             H  L    EA
18600 58   L   L    500      EAF0             H  H    58
# CLI: one more instruction runs
19600 EA   L   L    500      EAF1             H  L    EA
20600 EA   L   L    500      EAF1             H  H    EA
21600 EA   L   L    500      EAF2             H  L    EA
22600 EA   L   L    500      EAF2             H  H    EA
23600 EA   L   L    500      EAF2             H  L    EA
24600 EA   H   L    500      01FD             L  L    EA
25600 EA   H   L    500      01FC             L  L    F2
26600 EA   H   L    500      01FB             L  L    22
27600 00   L   L    500      FFFE             H  L    00
28600 40   L   L    500      FFFF             H  L    40
# still low, but I is set now
29600 EA   L   L    500      4000             H  H    EA
30600 EA   L   L    500      4001             H  L    EA
31600 EA   L   L    500      4001             H  H    EA
32600 EA   L   L    500      4002             H  L    EA
33600 EA   L   L    500      4002             H  H    EA
