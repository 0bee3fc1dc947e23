time AL  D  _G RW _OEL _CEa _CEb _CEc _CEd AR  _OER _CER => busa     busb     qa       qd       waita waitd
# Word 5 of each card in turn.
0    005 00 H  H  L    H    H    H    H    005 L    L       UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU U     U
10   005 00 H  H  L    H    H    H    H    005 L    L       ZZZZZZZZ ZZZZZZZZ UUUUUUUU UUUUUUUU U     U
20   005 00 H  H  L    H    H    H    H    005 L    L       ZZZZZZZZ ZZZZZZZZ 45       45       H     H
50   005 00 H  H  L    L    H    H    L    005 L    L       UUUUUUUU UUUUUUUU 45       45       H     H
69   005 00 H  H  L    L    H    H    L    005 L    L       UUUUUUUU UUUUUUUU 45       45       H     H
70   005 00 H  H  L    L    H    H    L    005 L    L       45       45       45       45       H     H
100  005 00 H  H  L    H    H    H    H    005 L    L       45       45       45       45       H     H
110  005 00 H  H  L    H    H    H    H    005 L    L       ZZZZZZZZ ZZZZZZZZ 45       45       H     H
# 9C goes to the first card, 63 to the last one.
200  005 9C L  H  H    H    H    H    H    005 L    L       9C       9C       45       45       H     H
205  005 9C L  H  H    H    H    H    H    006 L    L       9C       9C       45       45       H     H
210  005 9C L  H  H    L    H    H    H    006 L    L       9C       9C       UUUUUUUU UUUUUUUU H     H
230  005 9C L  L  H    L    H    H    H    006 L    L       9C       9C       46       46       H     H
250  005 9C L  H  H    L    H    H    H    006 L    L       9C       9C       46       46       H     H
260  005 63 L  H  H    H    H    H    H    006 L    L       63       63       46       46       H     H
270  005 63 L  H  H    H    H    H    L    006 L    L       63       63       46       46       H     H
290  005 63 L  L  H    H    H    H    L    006 L    L       63       63       46       46       H     H
310  005 63 L  H  H    H    H    H    L    006 L    L       63       63       46       46       H     H
320  005 63 H  H  H    H    H    H    H    006 L    L       ZZZZZZZZ ZZZZZZZZ 46       46       H     H
400  005 63 H  H  H    H    H    H    H    005 L    L       ZZZZZZZZ ZZZZZZZZ 46       46       H     H
419  005 63 H  H  H    H    H    H    H    005 L    L       ZZZZZZZZ ZZZZZZZZ UUUUUUUU UUUUUUUU H     H
420  005 63 H  H  H    H    H    H    H    005 L    L       ZZZZZZZZ ZZZZZZZZ 9C       63       H     H
# The others are as they were.
450  005 63 H  H  L    H    L    L    H    005 L    L       UUUUUUUU UUUUUUUU 9C       63       H     H
470  005 63 H  H  L    H    L    L    H    005 L    L       45       45       9C       63       H     H
500  005 63 H  H  L    H    H    H    H    005 L    L       45       45       9C       63       H     H
510  005 63 H  H  L    H    H    H    H    005 L    L       ZZZZZZZZ ZZZZZZZZ 9C       63       H     H
# A collision in the last card.
550  007 36 L  H  H    H    H    H    H    005 L    L       36       36       9C       63       H     H
560  007 36 L  L  H    H    H    H    H    005 L    L       36       36       9C       63       H     H
600  007 36 L  L  H    H    H    H    L    005 L    L       36       36       9C       63       H     H
650  007 36 L  L  H    H    H    H    L    007 L    L       36       36       9C       63       H     H
669  007 36 L  L  H    H    H    H    L    007 L    L       36       36       UUUUUUUU UUUUUUUU H     H
670  007 36 L  L  H    H    H    H    L    007 L    L       36       36       47       36       H     L
700  007 36 L  H  H    H    H    H    L    007 L    L       36       36       47       36       H     L
730  007 36 L  H  H    H    H    H    L    007 L    L       36       36       47       36       H     H
