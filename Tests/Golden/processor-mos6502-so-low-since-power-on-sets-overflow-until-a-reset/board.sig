# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _SO _RES ==(dT)=> A                rw sync D
0     EA   L   L   H    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   L   H    500      0000             H  L    EA
1600  EA   L   L   H    500      0100             H  L    EA
2600  EA   L   L   H    500      01FF             H  L    EA
3600  EA   L   L   H    500      01FE             H  L    EA
4600  EA   L   L   H    500      FFFC             H  L    EA
5600  EA   L   L   H    500      FFFD             H  L    EA
6600  08   L   L   H    500      EAEA             H  H    08
7600  EA   L   L   H    500      EAEB             H  L    EA
8600  EA   H   L   H    500      01FD             L  L    76
9600  EA   L   L   L    500      EAEB             H  H    EA
10600 EA   L   L   L    500      EAEC             H  L    EA
11600 EA   L   L   H    500      EAEC             H  H    EA
12600 EA   L   L   H    500      0000             H  L    EA
13600 EA   L   L   H    500      0100             H  L    EA
14600 EA   L   L   H    500      01FF             H  L    EA
15600 EA   L   L   H    500      01FE             H  L    EA
16600 EA   L   L   H    500      FFFC             H  L    EA
17600 EA   L   L   H    500      FFFD             H  L    EA
18600 08   L   L   H    500      EAEA             H  H    08
19600 EA   L   L   H    500      EAEB             H  L    EA
20600 EA   H   L   H    500      01FD             L  L    36
21600 EA   L   L   H    500      EAEB             H  H    EA
