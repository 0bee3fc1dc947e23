# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _IRQ ==(dT)=> A                rw sync D
0     EA   L   Z    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   Z    500      0000             H  L    EA
1600  EA   L   Z    500      0100             H  L    EA
2600  EA   L   Z    500      01FF             H  L    EA
3600  EA   L   Z    500      01FE             H  L    EA
4600  EA   L   Z    500      FFFC             H  L    EA
5600  EA   L   Z    500      FFFD             H  L    EA
6600  58   L   U    500      EAEA             H  H    58
7600  EA   L   U    500      EAEB             H  L    EA
8600  EA   L   U    500      EAEB             H  H    EA
9600  EA   L   U    500      EAEC             H  L    EA
10600 EA   L   Z    500      EAEC             H  H    EA
11600 EA   L   Z    500      EAED             H  L    EA
12600 EA   L   Z    500      EAED             H  H    EA
13600 EA   L   X    500      EAEE             H  L    EA
14600 EA   L   X    500      EAEE             H  H    EA
15600 EA   L   X    500      EAEF             H  L    EA
16600 EA   L   L    500      EAEF             H  H    EA
17600 EA   L   L    500      EAF0             H  L    EA
18600 EA   L   L    500      EAF0             H  H    EA
19600 EA   L   L    500      EAF0             H  L    EA
20600 EA   H   L    500      01FD             L  L    EA
21600 EA   H   L    500      01FC             L  L    F0
22600 EA   H   L    500      01FB             L  L    22
23600 00   L   L    500      FFFE             H  L    00
24600 40   L   L    500      FFFF             H  L    40
25600 40   L   L    500      4000             H  H    40
