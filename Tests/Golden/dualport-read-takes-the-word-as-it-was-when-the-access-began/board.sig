_CEL = L
RWL = H
DL = 00
_GL = H
DR = 99
_OER = H
_CER = L
_GR = L
time AL  _OEL AR  RWR => ram.IOL  ram.BUSYL
# The right side writes 99 at address 5, 15 ns after 400; the left one came there 5 ns after 400 and shows what was there then.
0    007 L    000 H      UUUUUUUU U
20   007 L    000 H      47       H
350  007 L    000 L      47       H
400  007 L    005 L      47       H
405  005 L    005 L      47       H
408  005 L    005 L      UUUUUUUU H
422  005 L    005 H      UUUUUUUU H
424  005 L    005 H      UUUUUUUU H
425  005 L    005 H      45       L
444  005 L    005 H      45       L
445  005 L    005 H      45       H
# It goes on showing it until something happens on its own pins.
500  005 L    000 H      45       H
550  005 H    000 H      45       H
560  005 H    000 H      ZZZZZZZZ H
600  005 L    000 H      UUUUUUUU H
611  005 L    000 H      99       H
# It comes 14 ns after 800: 1 ns before the write.
750  005 L    000 L      99       H
800  005 L    006 L      99       H
814  006 L    006 L      99       H
822  006 L    006 H      UUUUUUUU H
833  006 L    006 H      UUUUUUUU H
834  006 L    006 H      46       L
900  006 L    000 H      46       H
# It comes 15 ns after 1200: with the write.
1150 006 L    000 L      46       H
1200 006 L    007 L      46       H
1215 007 L    007 L      46       H
1222 007 L    007 H      UUUUUUUU H
1234 007 L    007 H      UUUUUUUU H
1235 007 L    007 H      99       L
1253 007 L    007 H      99       H
