# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _RES ==(dT)=> A                rw sync D
0     EA   L   H    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H    500      0000             H  L    EA
1600  EA   L   H    500      0100             H  L    EA
2600  EA   L   H    500      01FF             H  L    EA
3600  EA   L   H    500      01FE             H  L    EA
4600  EA   L   H    500      FFFC             H  L    EA
5600  EA   L   H    500      FFFD             H  L    EA
# low at one fall
6600  EA   L   L    500      EAEA             H  H    EA
7600  EA   L   H    500      EAEB             H  L    EA
8600  EA   L   L    500      EAEB             H  H    EA
# low at two falls: runs on meanwhile
9600  EA   L   L    500      EAEC             H  L    EA
10600 EA   L   H    500      EAEC             H  H    EA
11600 EA   L   H    500      0000             H  L    EA
12600 EA   L   H    500      0100             H  L    EA
13600 EA   L   H    500      01FF             H  L    EA
14600 EA   L   H    500      01FE             H  L    EA
15600 00   L   H    500      FFFC             H  L    00
16600 30   L   H    500      FFFD             H  L    30
# low, undefined, floating, low: undefined counts neither way
17600 EA   L   L    500      3000             H  H    EA
18600 EA   L   U    500      3001             H  L    EA
19600 EA   L   Z    500      3001             H  H    EA
20600 EA   L   L    500      3002             H  L    EA
21600 EA   L   X    500      3002             H  H    EA
22600 EA   L   H    500      3003             H  L    EA
23600 EA   L   L    500      0000             H  L    EA
# low, high, low, high
24600 EA   L   H    500      0100             H  L    EA
25600 EA   L   L    500      01FF             H  L    EA
26600 EA   L   H    500      01FE             H  L    EA
27600 00   L   H    500      FFFC             H  L    00
28600 30   L   H    500      FFFD             H  L    30
# between falls no pulse counts, neither low nor high
29600 EA   L   H    500      3000             H  H    EA
29700 EA   L   L    500      3000             H  H    EA
29800 EA   L   H    500      3000             H  H    EA
30600 EA   L   H    500      3001             H  L    EA
30700 EA   L   L    500      3001             H  L    EA
30800 EA   L   H    500      3001             H  L    EA
31600 EA   L   H    500      3001             H  H    EA
32600 EA   L   L    500      3002             H  L    EA
33600 EA   L   L    500      3002             H  H    EA
33700 EA   L   H    500      3002             H  H    EA
33800 EA   L   L    500      3002             H  H    EA
34600 EA   L   H    500      3003             H  L    EA
35600 EA   L   H    500      0000             H  L    EA
36600 EA   L   H    500      0100             H  L    EA
