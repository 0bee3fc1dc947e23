# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _SO ==(dT)=> A                rw sync D
0     EA   L   H   500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H   500      0000             H  L    EA
1600  EA   L   H   500      0100             H  L    EA
2600  EA   L   H   500      01FF             H  L    EA
3600  EA   L   H   500      01FE             H  L    EA
4600  EA   L   H   500      FFFC             H  L    EA
5600  EA   L   H   500      FFFD             H  L    EA
# PHP shows P
6600  08   L   H   500      EAEA             H  H    08
7600  EA   L   H   500      EAEB             H  L    EA
8600  EA   H   H   500      01FD             L  L    36
9600  08   L   L   500      EAEB             H  H    08
10600 EA   L   L   500      EAEC             H  L    EA
11600 EA   H   L   500      01FC             L  L    76
# CLV while _SO stays low
12600 B8   L   L   500      EAEC             H  H    B8
13600 EA   L   L   500      EAED             H  L    EA
14600 08   L   L   500      EAED             H  H    08
15600 EA   L   L   500      EAEE             H  L    EA
16600 EA   H   L   500      01FB             L  L    36
17600 EA   L   H   500      EAEE             H  H    EA
18600 EA   L   L   500      EAEF             H  L    EA
19600 08   L   L   500      EAEF             H  H    08
20600 EA   L   L   500      EAF0             H  L    EA
21600 EA   H   L   500      01FA             L  L    76
22600 B8   L   L   500      EAF0             H  H    B8
23600 EA   L   U   500      EAF1             H  L    EA
24600 EA   L   Z   500      EAF1             H  H    EA
25600 EA   L   X   500      EAF2             H  L    EA
26600 08   L   X   500      EAF2             H  H    08
27600 EA   L   X   500      EAF3             H  L    EA
28600 EA   H   X   500      01F9             L  L    36
# from undefined to low counts
29600 08   L   X   500      EAF3             H  H    08
29700 08   L   L   500      EAF3             H  H    08
29800 08   L   H   500      EAF3             H  H    08
30600 EA   L   H   500      EAF4             H  L    EA
31600 EA   H   H   500      01F8             L  L    76
