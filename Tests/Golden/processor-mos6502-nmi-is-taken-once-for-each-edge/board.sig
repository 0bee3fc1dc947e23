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
# I is set all the time. Low at one fall, the one before an opcode arrives
6600  EA   L   H    500      EAEA             H  H    EA
7600  EA   L   H    500      EAEB             H  L    EA
8600  EA   L   H    500      EAEB             H  H    EA
9600  EA   L   L    500      EAEC             H  L    EA
10600 EA   L   H    500      EAEC             H  H    EA
11600 EA   L   H    500      EAED             H  L    EA
12600 EA   L   H    500      EAED             H  H    EA
13600 EA   L   H    500      EAED             H  L    EA
14600 EA   H   H    500      01FD             L  L    EA
15600 EA   H   H    500      01FC             L  L    ED
16600 EA   H   H    500      01FB             L  L    26
17600 00   L   H    500      FFFA             H  L    00
18600 50   L   H    500      FFFB             H  L    50
19600 EA   L   H    500      5000             H  H    EA
20600 EA   L   H    500      5001             H  L    EA
# low at the fall at which an opcode arrives, and for good
21600 EA   L   L    500      5001             H  H    EA
22600 EA   L   L    500      5002             H  L    EA
23600 EA   L   L    500      5002             H  H    EA
24600 EA   L   L    500      5002             H  L    EA
25600 EA   H   L    500      01FA             L  L    50
26600 EA   H   L    500      01F9             L  L    02
27600 EA   H   L    500      01F8             L  L    26
28600 00   L   L    500      FFFA             H  L    00
29600 50   L   L    500      FFFB             H  L    50
30600 EA   L   L    500      5000             H  H    EA
31600 EA   L   L    500      5001             H  L    EA
32600 EA   L   L    500      5001             H  H    EA
33600 EA   L   L    500      5002             H  L    EA
34600 EA   L   H    500      5002             H  H    EA
# a new edge
35600 EA   L   L    500      5003             H  L    EA
36600 EA   L   L    500      5003             H  H    EA
37600 EA   L   L    500      5004             H  L    EA
38600 EA   L   L    500      5004             H  H    EA
39600 EA   L   L    500      5004             H  L    EA
40600 EA   H   L    500      01F7             L  L    50
41600 EA   H   L    500      01F6             L  L    04
42600 EA   H   L    500      01F5             L  L    26
43600 00   L   L    500      FFFA             H  L    00
44600 50   L   L    500      FFFB             H  L    50
45600 EA   L   L    500      5000             H  H    EA
46600 EA   L   L    500      5001             H  L    EA
