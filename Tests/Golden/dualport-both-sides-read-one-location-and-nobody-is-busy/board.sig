_CEL = L
_CER = L
RWR = H
_GR = H
DL = 5C
DR = 00
time AL  RWL _OEL _GL AR  _OER => ram.IOL  ram.IOR  ram.BUSYL ram.BUSYR
# Both sides read one address, the right one 30 ns later: nobody waits, both get the word.
0    001 H   L    H   002 L       UUUUUUUU UUUUUUUU U         U
20   001 H   L    H   002 L       41       42       H         H
100  005 H   L    H   002 L       41       42       H         H
103  005 H   L    H   002 L       UUUUUUUU 42       H         H
120  005 H   L    H   002 L       45       42       H         H
130  005 H   L    H   005 L       45       42       H         H
149  005 H   L    H   005 L       45       UUUUUUUU H         H
150  005 H   L    H   005 L       45       45       H         H
200  005 H   L    H   005 L       45       45       H         H
# Both come at once.
300  006 H   L    H   006 L       45       45       H         H
319  006 H   L    H   006 L       UUUUUUUU UUUUUUUU H         H
320  006 H   L    H   006 L       46       46       H         H
400  006 H   L    H   006 L       46       46       H         H
# The left side has its RW low when the right one comes: that one is busy, and still gets the word.
450  006 H   H    H   006 L       46       46       H         H
460  006 H   H    H   006 L       ZZZZZZZZ 46       H         H
500  007 L   H    L   006 L       5C       46       H         H
600  007 L   H    L   007 L       5C       46       H         H
619  007 L   H    L   007 L       5C       UUUUUUUU H         H
620  007 L   H    L   007 L       5C       5C       H         L
700  007 H   H    L   007 L       5C       5C       H         L
729  007 H   H    L   007 L       5C       5C       H         L
730  007 H   H    L   007 L       5C       5C       H         H
