# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _IRQ ==(dT)=> A                rw sync D
0     EA   L   H    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H    500      0000             H  L    EA
1600  EA   L   H    500      0100             H  L    EA
2600  EA   L   H    500      01FF             H  L    EA
3600  EA   L   H    500      01FE             H  L    EA
4600  EA   L   H    500      FFFC             H  L    EA
5600  EA   L   H    500      FFFD             H  L    EA
6600  58   L   H    500      EAEA             H  H    58
# _IRQ low at the fall before an opcode arrives only: lost
7600  EA   L   H    500      EAEB             H  L    EA
8600  EA   L   H    500      EAEB             H  H    EA
9600  EA   L   L    500      EAEC             H  L    EA
10600 EA   L   H    500      EAEC             H  H    EA
11600 EA   L   H    500      EAED             H  L    EA
12600 EA   L   L    500      EAED             H  H    EA
# low at the fall at which an opcode arrives: the second opcode from there gives way to the interrupt
13600 EA   L   H    500      EAEE             H  L    EA
14600 EA   L   H    500      EAEE             H  H    EA
15600 EA   L   H    500      EAEE             H  L    EA
16600 EA   H   H    500      01FD             L  L    EA
17600 EA   H   H    500      01FC             L  L    EE
# P: Z, without B
18600 EA   H   H    500      01FB             L  L    22
19600 00   L   H    500      FFFE             H  L    00
20600 40   L   H    500      FFFF             H  L    40
# RTI
21600 40   L   H    500      4000             H  H    40
22600 EA   L   H    500      4001             H  L    EA
23600 EA   L   H    500      01FA             H  L    EA
24600 22   L   H    500      01FB             H  L    22
25600 EE   L   H    500      01FC             H  L    EE
26600 EA   L   H    500      01FD             H  L    EA
27600 EA   L   H    500      EAEE             H  H    EA
28600 EA   L   H    500      EAEF             H  L    EA
# a pulse between two falls is not seen
29600 EA   L   H    500      EAEF             H  H    EA
29700 EA   L   L    500      EAEF             H  H    EA
29800 EA   L   H    500      EAEF             H  H    EA
30600 EA   L   H    500      EAF0             H  L    EA
30700 EA   L   L    500      EAF0             H  L    EA
30800 EA   L   H    500      EAF0             H  L    EA
31600 EA   L   H    500      EAF0             H  H    EA
32600 EA   L   H    500      EAF1             H  L    EA
33600 EA   L   H    500      EAF1             H  H    EA
