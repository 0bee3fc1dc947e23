DL = 00
_GL = H
_OEL = H
_CEL = L
DR = 00
_GR = H
_OER = H
_CER = L
time AL  RWL AR  RWR => ram.BUSYL ram.BUSYR
# The left RW is low. The right address comes at 100, and its RW is low from 104 to 108: the address's looks at 115 and 120 are
# no looks for a write then, only those of RW are.
0    005 L   002 H      H         U
20   005 L   002 H      H         H
100  005 L   005 H      H         H
104  005 L   005 L      H         H
108  005 L   005 H      H         H
120  005 L   005 H      H         L
200  005 L   002 H      H         L
223  005 L   002 H      H         H
# RW falls at 307: low for 13 ns at 320, too short as well.
300  005 L   005 H      H         H
307  005 L   005 L      H         H
320  005 L   005 L      H         L
# When the address leaves RW has been low for long: the look at 403 warns.
400  005 L   002 L      H         L
423  005 L   002 L      H         H
450  005 L   002 H      H         H
# RW falls at 505: low for 15 ns at 520.
500  005 L   005 H      H         H
505  005 L   005 L      H         H
520  005 L   005 L      H         L
550  005 L   005 H      H         L
600  005 L   002 H      H         L
623  005 L   002 H      H         H
