_CEL = L
_CER = L
_OER = L
_GR = H
DR = 00
time AL  DL _GL RWL _OEL AR  RWR => ram.IOL  ram.IOR
# RW stays low, and the data change: what was there 20 ns behind its fall stays stored. Edges of the right side change nothing.
0    001 11 H   H   H    002 H      UUUUUUUU UUUUUUUU
20   001 11 H   H   H    002 H      ZZZZZZZZ 42
50   001 11 L   H   H    002 H      11       42
100  001 11 L   L   H    002 H      11       42
150  001 22 L   L   H    002 H      22       42
160  001 22 L   L   H    002 L      22       42
170  001 22 L   L   H    002 H      22       42
250  001 22 L   H   H    002 H      22       42
# _OE falls: the bus at this moment is stored.
280  003 33 L   H   H    002 H      33       42
300  003 33 L   L   H    002 H      33       42
350  003 44 L   L   H    002 H      44       42
400  003 44 L   L   L    002 H      UUUUUUUU 42
405  003 44 L   H   L    002 H      UUUUUUUU 42
420  003 44 L   H   H    002 H      UUUUUUUU 42
430  003 44 L   H   H    002 H      44       42
# 11 ns later the bus is stored again, where two drive by now.
480  004 55 L   H   H    002 H      55       42
500  004 55 L   L   H    002 H      55       42
550  004 66 L   L   H    002 H      66       42
600  004 66 L   L   L    002 H      UUUUUUUU 42
612  004 66 L   H   L    002 H      UUUUUUUU 42
620  004 66 L   H   H    002 H      UUUUUUUU 42
630  004 66 L   H   H    002 H      66       42
# _OE rises, from undefined: the bus 10 ns later is stored.
680  005 77 L   H   H    002 H      77       42
700  005 77 L   L   H    002 H      77       42
730  005 77 L   L   U    002 H      77       42
750  005 88 L   L   U    002 H      88       42
780  005 88 L   L   H    002 H      88       42
789  005 99 L   L   H    002 H      99       42
791  005 AA L   L   H    002 H      AA       42
850  005 AA L   H   H    002 H      AA       42
860  005 AA H   H   H    002 H      ZZZZZZZZ 42
# Undefined alone it stores nothing.
880  006 BB L   H   H    002 H      BB       42
900  006 BB L   L   H    002 H      BB       42
950  006 CC L   L   H    002 H      CC       42
960  006 CC L   L   U    002 H      CC       42
980  006 CC L   H   U    002 H      CC       42
990  006 CC H   H   U    002 H      ZZZZZZZZ 42
# The words.
1100 006 CC H   H   U    001 H      ZZZZZZZZ 42
1120 006 CC H   H   U    001 H      ZZZZZZZZ 11
1150 006 CC H   H   U    003 H      ZZZZZZZZ 11
1170 006 CC H   H   U    003 H      ZZZZZZZZ 44
1200 006 CC H   H   U    004 H      ZZZZZZZZ 44
1203 006 CC H   H   U    004 H      ZZZZZZZZ UUUUUUUU
1220 006 CC H   H   U    004 H      ZZZZZZZZ UUUUUUUU
1250 006 CC H   H   U    005 H      ZZZZZZZZ UUUUUUUU
1270 006 CC H   H   U    005 H      ZZZZZZZZ 99
1300 006 CC H   H   U    006 H      ZZZZZZZZ 99
1320 006 CC H   H   U    006 H      ZZZZZZZZ BB
