time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR waitL waitR
# BUSY is written ahead of time; inverters of 3 ns behind it follow.
0    001 L    H   002 L    L      U         U         U     U
20   001 L    H   002 L    L      H         H         U     U
23   001 L    H   002 L    L      H         H         L     L
100  005 L    H   002 L    L      H         H         L     L
200  005 L    H   005 L    L      H         H         L     L
220  005 L    H   005 L    L      H         L         L     L
222  005 L    H   005 L    L      H         L         L     L
223  005 L    H   005 L    L      H         L         L     H
300  005 L    H   002 L    L      H         L         L     H
323  005 L    H   002 L    L      H         H         L     H
325  005 L    H   002 L    L      H         H         L     H
326  005 L    H   002 L    L      H         H         L     L
# RW falls 4 ns behind the arrival: BUSY is low for 3 ns, but its rise was written before its fall, so it wakes nobody.
400  005 L    H   002 L    H      H         H         L     L
450  005 L    H   005 L    H      H         H         L     L
454  005 L    H   005 L    L      H         H         L     L
470  005 L    H   005 L    L      H         L         L     L
472  005 L    H   005 L    L      H         L         L     L
473  005 L    H   005 L    L      H         H         L     H
500  005 L    H   005 L    L      H         H         L     H
540  005 L    H   005 L    L      H         H         L     H
# What follows puts it right.
600  005 L    H   002 L    L      H         H         L     H
650  005 L    H   005 L    L      H         H         L     H
670  005 L    H   005 L    L      H         L         L     H
673  005 L    H   005 L    L      H         L         L     H
700  005 L    H   002 L    L      H         L         L     H
723  005 L    H   002 L    L      H         H         L     H
726  005 L    H   002 L    L      H         H         L     L
# The right side loses, and leaves at 900; the inverter has seen it busy up to 923. Its win at 1000 puts that in another light,
# which doesn't change what was done.
800  005 L    H   005 L    L      H         H         L     L
823  005 L    H   005 L    L      H         L         L     H
900  005 L    H   006 L    L      H         H         L     H
922  005 L    H   006 L    L      H         H         L     H
925  005 L    H   006 L    L      H         H         L     H
926  005 L    H   006 L    L      H         H         L     L
1000 006 L    H   006 L    L      H         H         L     L
1020 006 L    H   006 L    L      L         H         L     L
1023 006 L    H   006 L    L      L         H         H     L
