# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off _NMI ==(dT)=> A                rw sync D
0     EA   L   L    500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   L    500      0000             H  L    EA
1600  EA   L   L    500      0100             H  L    EA
2600  EA   L   L    500      01FF             H  L    EA
3600  EA   L   L    500      01FE             H  L    EA
4600  EA   L   L    500      FFFC             H  L    EA
5600  EA   L   L    500      FFFD             H  L    EA
6600  EA   L   L    500      EAEA             H  H    EA
7600  EA   L   L    500      EAEA             H  L    EA
8600  EA   H   L    500      01FD             L  L    EA
9600  EA   H   L    500      01FC             L  L    EA
10600 EA   H   L    500      01FB             L  L    26
11600 00   L   L    500      FFFA             H  L    00
12600 50   L   L    500      FFFB             H  L    50
13600 EA   L   L    500      5000             H  H    EA
14600 EA   L   L    500      5001             H  L    EA
15600 EA   L   L    500      5001             H  H    EA
16600 EA   L   L    500      5002             H  L    EA
17600 EA   L   L    500      5002             H  H    EA
