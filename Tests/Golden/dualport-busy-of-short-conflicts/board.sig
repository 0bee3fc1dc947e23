time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# The right side is at the left one's address for 2 ns: it is gone before anything looks.
0    001 L    L   002 L    H      H         U
20   001 L    L   002 L    H      H         H
100  001 L    L   001 L    H      H         H
102  001 L    L   002 L    H      H         H
120  001 L    L   002 L    H      H         H
122  001 L    L   002 L    H      H         H
140  001 L    L   002 L    H      H         H
# For 3 ns: the first look comes when it has left.
200  001 L    L   001 L    H      H         H
203  001 L    L   002 L    H      H         H
220  001 L    L   002 L    H      H         H
240  001 L    L   002 L    H      H         H
# For 4 ns: busy from 20 ns behind the arrival to 20 ns behind the first look after the leave.
300  001 L    L   001 L    H      H         H
304  001 L    L   002 L    H      H         H
319  001 L    L   002 L    H      H         H
320  001 L    L   002 L    H      H         L
326  001 L    L   002 L    H      H         L
327  001 L    L   002 L    H      H         H
350  001 L    L   002 L    H      H         H
# 1 ns away and back: it came anew and stays busy.
400  001 L    L   001 L    H      H         H
420  001 L    L   001 L    H      H         L
440  001 L    L   002 L    H      H         L
441  001 L    L   001 L    H      H         L
461  001 L    L   001 L    H      H         L
480  001 L    L   001 L    H      H         L
500  001 L    L   002 L    H      H         L
523  001 L    L   002 L    H      H         H
# The left side comes last. Before anything looks the right one leaves and comes back, so it is last:
# it goes busy, and the left side stays so, since it never found itself alone.
600  001 L    L   003 L    H      H         H
650  003 L    L   003 L    H      H         H
669  003 L    L   003 L    H      H         H
670  003 L    L   003 L    H      L         H
700  003 L    L   004 L    H      L         H
702  003 L    L   003 L    H      L         H
721  003 L    L   003 L    H      L         H
722  003 L    L   003 L    H      L         L
800  003 L    L   003 L    H      L         L
900  003 L    L   005 L    H      L         L
922  003 L    L   005 L    H      L         L
923  003 L    L   005 L    H      H         H
