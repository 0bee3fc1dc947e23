time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# A run ends 1 ns behind its last vector: of the looks at 215 and 220 the first is in it.
0    001 L    H   002 L    H      H         U
20   001 L    H   002 L    H      H         H
100  001 L    H   001 L    H      H         H
200  001 L    H   001 L    L      H         H
214  001 L    H   001 L    L      H         H
