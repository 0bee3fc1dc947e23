_CEL = L
_CER = L
time AL  RWL _OEL AR  RWR _OER => bus      ram.IOL  ram.IOR
# The left side reads 3, the right one writes it to 9.
0    003 H   H    009 H   H       UUUUUUUU UUUUUUUU UUUUUUUU
10   003 H   H    009 H   H       ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
100  003 H   L    009 H   H       UUUUUUUU UUUUUUUU UUUUUUUU
111  003 H   L    009 H   H       43       43       43
130  003 H   L    009 L   H       43       43       43
150  003 H   L    009 H   H       43       43       43
200  003 H   H    009 H   H       43       43       43
210  003 H   H    009 H   H       ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
# The other way: from 5 to 00A.
300  00A H   H    005 H   H       ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
320  00A H   H    005 H   L       UUUUUUUU UUUUUUUU UUUUUUUU
331  00A H   H    005 H   L       45       45       45
350  00A L   H    005 H   L       45       45       45
370  00A H   H    005 H   L       45       45       45
# Both sides drive: undefined.
400  00A H   L    005 H   L       UUUUUUUU UUUUUUUU UUUUUUUU
411  00A H   L    005 H   L       UUUUUUUU UUUUUUUU UUUUUUUU
450  00A H   L    005 H   H       UUUUUUUU UUUUUUUU UUUUUUUU
459  00A H   L    005 H   H       UUUUUUUU UUUUUUUU UUUUUUUU
460  00A H   L    005 H   H       45       45       45
# 9 is read by the right side, then the left one.
500  00A H   H    009 H   H       45       45       45
510  00A H   H    009 H   H       ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
550  00A H   H    009 H   L       UUUUUUUU UUUUUUUU UUUUUUUU
561  00A H   H    009 H   L       43       43       43
600  00A H   H    009 H   H       43       43       43
610  009 H   H    009 H   H       ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
650  009 H   L    009 H   H       UUUUUUUU UUUUUUUU UUUUUUUU
661  009 H   L    009 H   H       43       43       43
