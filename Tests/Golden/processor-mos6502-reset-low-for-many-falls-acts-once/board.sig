# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _RES ==(dT)=> A                rw sync D
0     EA   L   L    500      UUUUUUUUUUUUUUUU U  U    EA
# low since power-on: runs all the same
600   EA   L   L    500      0000             H  L    EA
1600  EA   L   L    500      0100             H  L    EA
2600  EA   L   L    500      01FF             H  L    EA
3600  EA   L   L    500      01FE             H  L    EA
4600  EA   L   L    500      FFFC             H  L    EA
5600  EA   L   L    500      FFFD             H  L    EA
6600  EA   L   L    500      EAEA             H  H    EA
7600  EA   L   L    500      EAEB             H  L    EA
8600  EA   L   H    500      EAEB             H  H    EA
9600  EA   L   H    500      0000             H  L    EA
10600 EA   L   H    500      0100             H  L    EA
11600 EA   L   H    500      01FF             H  L    EA
12600 EA   L   H    500      01FE             H  L    EA
13600 00   L   H    500      FFFC             H  L    00
14600 30   L   H    500      FFFD             H  L    30
15600 EA   L   H    500      3000             H  H    EA
16600 EA   L   H    500      3001             H  L    EA
17600 EA   L   H    500      3001             H  H    EA
