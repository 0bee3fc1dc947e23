_CEL = L
_CER = L
time AL  DL _GL RWL _OEL AR  DR _GR RWR _OER => ram.IOL  ram.IOR
# A conflict counts 15 ns behind it. The right side, with its RW low, has left 14 ns before the left side's write: the write
# at 115 is refused, the one at 120 stores.
0    001 11 H   H   H    002 22 L   H   H       UUUUUUUU UUUUUUUU
20   001 11 H   H   H    002 22 L   H   H       ZZZZZZZZ 22
30   001 11 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
80   001 11 H   H   H    001 22 L   L   H       ZZZZZZZZ 22
100  001 11 L   L   H    001 22 L   L   H       11       22
101  001 11 L   L   H    002 22 L   L   H       11       22
117  001 33 L   L   H    002 22 L   L   H       33       22
121  001 33 L   H   H    002 22 L   L   H       33       22
140  001 33 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
# 15 ns before: both store.
180  003 44 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
190  003 44 H   H   H    003 22 L   L   H       ZZZZZZZZ 22
200  003 44 L   L   H    002 22 L   L   H       44       22
216  003 44 L   H   H    002 22 L   L   H       44       22
220  003 44 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
# The right side comes behind the 15 ns: the write at 315 stores, the one at 320 is refused, and so are its own.
280  004 55 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
300  004 55 L   L   H    002 22 L   L   H       55       22
301  004 55 L   L   H    004 22 L   L   H       55       22
317  004 66 L   L   H    004 22 L   L   H       66       22
321  004 66 L   H   H    004 22 L   L   H       66       22
330  004 66 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
# 1 ns earlier: both are refused.
380  005 77 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
400  005 77 L   L   H    005 22 L   L   H       77       22
421  005 77 L   H   H    005 22 L   L   H       77       22
430  005 77 H   H   H    002 22 L   L   H       ZZZZZZZZ 22
# The four words, on the right side.
500  005 77 H   H   H    002 22 H   H   H       ZZZZZZZZ ZZZZZZZZ
600  005 77 H   H   H    001 22 H   H   L       ZZZZZZZZ UUUUUUUU
620  005 77 H   H   H    001 22 H   H   L       ZZZZZZZZ 33
650  005 77 H   H   H    003 22 H   H   L       ZZZZZZZZ 33
670  005 77 H   H   H    003 22 H   H   L       ZZZZZZZZ 44
700  005 77 H   H   H    004 22 H   H   L       ZZZZZZZZ 44
720  005 77 H   H   H    004 22 H   H   L       ZZZZZZZZ 55
750  005 77 H   H   H    005 22 H   H   L       ZZZZZZZZ 55
770  005 77 H   H   H    005 22 H   H   L       ZZZZZZZZ 45
