_CEL = L
_CER = L
time AL  DL _GL RWL _OEL AR  DR _GR RWR _OER => ram.IOL  ram.IOR  ram.BUSYL ram.BUSYR
# Both sides write at address 5, where the left one came first. Each write that meets the other warns, on either side.
0    001 11 H   H   H    002 22 H   H   H       UUUUUUUU UUUUUUUU U         U
20   001 11 H   H   H    002 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
50   005 11 H   H   H    002 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
60   005 11 H   H   H    005 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
62   005 11 L   L   H    005 22 L   L   H       11       22       H         H
79   005 11 L   L   H    005 22 L   L   H       11       22       H         H
80   005 11 L   L   H    005 22 L   L   H       11       22       H         L
150  005 11 L   H   H    005 22 L   H   H       11       22       H         L
160  005 11 H   H   H    005 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         L
179  005 11 H   H   H    005 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         L
180  005 11 H   H   H    005 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
# Nothing was stored.
200  005 11 H   H   L    005 22 H   H   L       UUUUUUUU UUUUUUUU H         H
211  005 11 H   H   L    005 22 H   H   L       45       45       H         H
240  005 11 H   H   H    005 22 H   H   H       45       45       H         H
250  005 11 H   H   H    005 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
# At two addresses both are stored.
300  006 11 H   H   H    007 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
330  006 11 L   L   H    007 22 L   L   H       11       22       H         H
350  006 11 L   H   H    007 22 L   H   H       11       22       H         H
360  006 11 H   H   H    007 22 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
400  007 11 H   H   L    006 22 H   H   L       UUUUUUUU UUUUUUUU H         H
420  007 11 H   H   L    006 22 H   H   L       22       11       H         H
