time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
0    001 L    H   001 L    H      H         U
20   001 L    H   001 L    H      H         L
23   001 L    H   001 L    H      H         H
100  001 L    L   001 L    H      H         H
200  001 L    H   001 L    H      H         H
220  001 L    H   001 L    H      H         H
