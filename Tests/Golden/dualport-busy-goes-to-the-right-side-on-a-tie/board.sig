time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# Both addresses arrive at once: the right side loses.
0    001 L    H   002 L    L      U         U
20   001 L    H   002 L    L      H         H
300  007 L    H   007 L    L      H         H
319  007 L    H   007 L    L      H         H
320  007 L    H   007 L    L      H         L
400  007 L    H   002 L    L      H         L
422  007 L    H   002 L    L      H         L
423  007 L    H   002 L    L      H         H
# Both _CE fall at once.
500  007 H    H   007 H    L      H         H
600  007 L    H   007 L    L      H         H
619  007 L    H   007 L    L      H         H
620  007 L    H   007 L    L      H         L
700  007 H    H   007 H    L      H         L
729  007 H    H   007 H    L      H         L
730  007 H    H   007 H    L      H         H
# The left address arrives when the right _CE falls.
800  008 L    H   007 H    L      H         H
900  007 L    H   007 L    L      H         H
919  007 L    H   007 L    L      H         H
920  007 L    H   007 L    L      H         L
1000 007 L    H   007 H    L      H         L
1030 007 L    H   007 H    L      H         H
# The right address arrives when the left _CE falls.
1100 007 H    H   009 L    L      H         H
1200 007 L    H   007 L    L      H         H
1219 007 L    H   007 L    L      H         H
1220 007 L    H   007 L    L      H         L
# 1 ns decides for the other side.
1300 00A L    H   00B L    L      H         L
1323 00A L    H   00B L    L      H         H
1400 00A L    H   00C L    L      H         H
1401 00C L    H   00C L    L      H         H
1420 00C L    H   00C L    L      H         H
1421 00C L    H   00C L    L      L         H
