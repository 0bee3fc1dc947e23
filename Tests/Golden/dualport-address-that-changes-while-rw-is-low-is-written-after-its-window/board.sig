_CEL = L
_CER = L
RWR = H
_GR = H
time AL  DL _GL RWL _OEL AR  _OER => ram.IOL  ram.IOR
# RW stays low while the address moves on.
0    001 11 H   H   H    000 H       UUUUUUUU UUUUUUUU
50   001 11 L   H   H    000 H       11       ZZZZZZZZ
100  001 11 L   L   H    000 H       11       ZZZZZZZZ
130  002 22 L   L   H    000 H       22       ZZZZZZZZ
# Address 3 stands for 14 ns only.
160  003 33 L   L   H    000 H       33       ZZZZZZZZ
174  004 44 L   L   H    000 H       44       ZZZZZZZZ
# 15 ns are too few, as the change falls on the moment of the write; 16 are enough.
200  005 55 L   L   H    000 H       55       ZZZZZZZZ
215  006 66 L   L   H    000 H       66       ZZZZZZZZ
231  007 77 L   L   H    000 H       77       ZZZZZZZZ
270  007 77 L   H   H    000 H       77       ZZZZZZZZ
275  007 77 H   H   H    000 H       ZZZZZZZZ ZZZZZZZZ
# The right side looks at what is there; 3 and 5 have kept their words.
300  007 77 H   H   H    001 L       ZZZZZZZZ UUUUUUUU
320  007 77 H   H   H    001 L       ZZZZZZZZ 11
350  007 77 H   H   H    002 L       ZZZZZZZZ 11
370  007 77 H   H   H    002 L       ZZZZZZZZ 22
400  007 77 H   H   H    003 L       ZZZZZZZZ 22
420  007 77 H   H   H    003 L       ZZZZZZZZ 43
450  007 77 H   H   H    004 L       ZZZZZZZZ 43
470  007 77 H   H   H    004 L       ZZZZZZZZ 44
500  007 77 H   H   H    005 L       ZZZZZZZZ 44
520  007 77 H   H   H    005 L       ZZZZZZZZ 45
550  007 77 H   H   H    006 L       ZZZZZZZZ 45
570  007 77 H   H   H    006 L       ZZZZZZZZ 66
600  007 77 H   H   H    007 L       ZZZZZZZZ 66
620  007 77 H   H   H    007 L       ZZZZZZZZ 77
