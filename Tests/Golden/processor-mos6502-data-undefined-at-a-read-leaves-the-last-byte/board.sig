# A line a bus cycle: the memory answers 100 ns after the fall, the cycle is compared 100 ns after the rise.
# The control pins count as they stand at the fall that ends the cycle.
time  data     off ==(dT)=> A                rw sync D
0     EA       L   500      UUUUUUUUUUUUUUUU U  U    EA
# the sequence after power-on, then the vector
600   EA       L   500      0000             H  L    EA
1600  EA       L   500      0100             H  L    EA
2600  EA       L   500      01FF             H  L    EA
3600  EA       L   500      01FE             H  L    EA
4600  EA       L   500      FFFC             H  L    EA
5600  EA       L   500      FFFD             H  L    EA
# LDA #, the operand undefined: it is the opcode again
6600  A9       L   500      EAEA             H  H    A9
7600  UUUUUUUU L   500      EAEB             H  L    UUUUUUUU
8600  8D       L   500      EAEC             H  H    8D
9600  00       L   500      EAED             H  L    00
10600 02       L   500      EAEE             H  L    02
11600 02       H   500      0200             L  L    A9
# LDX #, one bit undefined
12600 A2       L   500      EAEF             H  H    A2
13600 LHLHLHLU L   500      EAF0             H  L    LHLHLHLU
14600 8E       L   500      EAF1             H  H    8E
15600 00       L   500      EAF2             H  L    00
16600 03       L   500      EAF3             H  L    03
17600 03       H   500      0300             L  L    A2
# a fetch from a floating bus: the byte written before is the opcode
18600 03       H   500      EAF4             H  H    ZZZZZZZZ
19600 77       L   500      EAF5             H  L    77
20600 8E       L   500      EAF6             H  H    8E
21600 00       L   500      EAF7             H  L    00
22600 04       L   500      EAF8             H  L    04
23600 04       H   500      0400             L  L    77
# undefined for a time, but not at the fall
24600 A9       L   500      EAF9             H  H    A9
25600 UUUUUUUU L   500      EAFA             H  L    3C
25700 3C       L   500      EAFA             H  L    3C
26600 8D       L   500      EAFB             H  H    8D
27600 00       L   500      EAFC             H  L    00
28600 05       L   500      EAFD             H  L    05
29600 05       H   500      0500             L  L    3C
30600 EA       L   500      EAFE             H  H    EA
