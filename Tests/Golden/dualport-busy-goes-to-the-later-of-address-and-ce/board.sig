time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# The right address comes, 7 ns later its _CE.
0    007 L    L   001 H    H      H         U
30   007 L    L   001 H    H      H         H
300  007 L    L   007 H    H      H         H
307  007 L    L   007 L    H      H         H
320  007 L    L   007 L    H      H         H
326  007 L    L   007 L    H      H         H
327  007 L    L   007 L    H      H         L
400  007 L    L   001 L    H      H         L
422  007 L    L   001 L    H      H         L
423  007 L    L   001 L    H      H         H
# _CE first, 12 ns later the address.
500  007 L    L   001 H    H      H         H
600  007 L    L   001 L    H      H         H
612  007 L    L   007 L    H      H         H
620  007 L    L   007 L    H      H         H
631  007 L    L   007 L    H      H         H
632  007 L    L   007 L    H      H         L
700  007 L    L   001 L    H      H         L
723  007 L    L   001 L    H      H         H
# What the left side did long ago doesn't count against it: its _CE fell behind the right one's, but the right address is later.
800  003 H    L   001 L    H      H         H
850  003 H    L   004 L    H      H         H
900  003 L    L   004 L    H      H         H
1000 003 L    L   003 L    H      H         H
1019 003 L    L   003 L    H      H         H
1020 003 L    L   003 L    H      H         L
1100 003 L    L   004 L    H      H         L
1123 003 L    L   004 L    H      H         H
# It does if it is the last of the four.
1200 003 H    L   003 L    H      H         H
1300 003 L    L   003 L    H      H         H
1319 003 L    L   003 L    H      H         H
1320 003 L    L   003 L    H      L         H
