# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data off RDY ==(dT)=> A                rw sync D
0     EA   L   H   500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA   L   H   500      0000             H  L    EA
1600  EA   L   H   500      0100             H  L    EA
2600  EA   L   H   500      01FF             H  L    EA
3600  EA   L   H   500      01FE             H  L    EA
4600  EA   L   H   500      FFFC             H  L    EA
5600  EA   L   H   500      FFFD             H  L    EA
# a fetch, repeated: the opcode is what stands there at the last
6600  02   L   L   500      EAEA             H  H    02
7600  A9   L   L   500      EAEA             H  H    A9
8600  00   L   H   500      EAEA             H  H    00
9600  EA   L   L   500      EAEB             H  L    EA
10600 EA   L   H   500      EAEB             H  L    EA
# writes go on
11600 EA   H   L   500      01FD             L  L    EA
12600 EA   H   L   500      01FC             L  L    EC
13600 EA   H   L   500      01FB             L  L    36
14600 34   L   L   500      FFFE             H  L    34
15600 56   L   L   500      FFFE             H  L    56
16600 00   L   U   500      FFFE             H  L    00
# floating or undefined is no wait
17600 40   L   Z   500      FFFF             H  L    40
18600 EA   L   X   500      4000             H  H    EA
19600 EA   L   U   500      4001             H  L    EA
20600 EA   L   U   500      4001             H  H    EA
21600 EA   L   H   500      4002             H  L    EA
# a pulse between falls is none
22600 EA   L   H   500      4002             H  H    EA
22700 EA   L   L   500      4002             H  H    EA
22800 EA   L   H   500      4002             H  H    EA
23600 EA   L   H   500      4003             H  L    EA
