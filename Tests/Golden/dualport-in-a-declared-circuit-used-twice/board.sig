time AL  D  _G RW _OEL _CEa _CEb AR  _OER _CER => bus      qa       qb       waita waitb
# The word at 5 out of the first card, then out of the second one, on the common bus.
0    005 00 H  H  L    H    H    006 L    L       UUUUUUUU UUUUUUUU UUUUUUUU U     U
10   005 00 H  H  L    H    H    006 L    L       ZZZZZZZZ UUUUUUUU UUUUUUUU U     U
19   005 00 H  H  L    H    H    006 L    L       ZZZZZZZZ UUUUUUUU UUUUUUUU U     U
20   005 00 H  H  L    H    H    006 L    L       ZZZZZZZZ 46       46       H     H
50   005 00 H  H  L    L    H    006 L    L       UUUUUUUU 46       46       H     H
70   005 00 H  H  L    L    H    006 L    L       45       46       46       H     H
100  005 00 H  H  L    H    H    006 L    L       45       46       46       H     H
110  005 00 H  H  L    H    H    006 L    L       ZZZZZZZZ 46       46       H     H
120  005 00 H  H  L    H    L    006 L    L       UUUUUUUU 46       46       H     H
140  005 00 H  H  L    H    L    006 L    L       45       46       46       H     H
150  005 00 H  H  L    H    H    006 L    L       45       46       46       H     H
160  005 00 H  H  L    H    H    006 L    L       ZZZZZZZZ 46       46       H     H
# 9C is written to the first card only, 63 to the second one.
200  005 9C L  H  H    H    H    006 L    L       9C       46       46       H     H
210  005 9C L  H  H    L    H    006 L    L       9C       46       46       H     H
230  005 9C L  L  H    L    H    006 L    L       9C       46       46       H     H
250  005 9C L  H  H    L    H    006 L    L       9C       46       46       H     H
260  005 63 L  H  H    H    H    006 L    L       63       46       46       H     H
270  005 63 L  H  H    H    L    006 L    L       63       46       46       H     H
290  005 63 L  L  H    H    L    006 L    L       63       46       46       H     H
310  005 63 L  H  H    H    L    006 L    L       63       46       46       H     H
320  005 63 H  H  H    H    H    006 L    L       ZZZZZZZZ 46       46       H     H
# The right sides find each its own.
400  005 63 H  H  H    H    H    005 L    L       ZZZZZZZZ 46       46       H     H
403  005 63 H  H  H    H    H    005 L    L       ZZZZZZZZ UUUUUUUU UUUUUUUU H     H
419  005 63 H  H  H    H    H    005 L    L       ZZZZZZZZ UUUUUUUU UUUUUUUU H     H
420  005 63 H  H  H    H    H    005 L    L       ZZZZZZZZ 9C       63       H     H
# A collision in the first card: its right side waits, the other one doesn't.
500  005 36 L  L  H    H    H    005 L    L       36       9C       63       H     H
520  006 36 L  L  H    H    H    005 L    L       36       9C       63       H     H
600  006 36 L  L  H    L    H    007 L    L       36       9C       63       H     H
620  006 36 L  L  H    L    H    007 L    L       36       47       47       H     H
650  006 36 L  L  H    L    H    006 L    L       36       47       47       H     H
669  006 36 L  L  H    L    H    006 L    L       36       UUUUUUUU UUUUUUUU H     H
670  006 36 L  L  H    L    H    006 L    L       36       36       46       L     H
700  006 36 L  H  H    L    H    006 L    L       36       36       46       L     H
730  006 36 L  H  H    L    H    006 L    L       36       36       46       H     H
