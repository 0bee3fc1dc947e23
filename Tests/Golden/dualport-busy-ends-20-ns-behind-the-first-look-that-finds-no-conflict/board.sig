time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# The right side came last. Its address goes on: free 20 ns behind the first look, 3 ns after the change.
0    001 L    L   002 L    H      H         U
20   001 L    L   002 L    H      H         H
200  001 L    L   001 L    H      H         H
220  001 L    L   001 L    H      H         L
300  001 L    L   002 L    H      H         L
322  001 L    L   002 L    H      H         L
323  001 L    L   002 L    H      H         H
# The address of the winner goes on: the same.
400  001 L    L   001 L    H      H         H
420  001 L    L   001 L    H      H         L
500  003 L    L   001 L    H      H         L
522  003 L    L   001 L    H      H         L
523  003 L    L   001 L    H      H         H
# The loser's _CE rises: the first look is 10 ns later.
600  003 L    L   003 L    H      H         H
620  003 L    L   003 L    H      H         L
700  003 L    L   003 H    H      H         L
729  003 L    L   003 H    H      H         L
730  003 L    L   003 H    H      H         H
# The winner's _CE rises: the same.
800  003 L    L   003 L    H      H         H
820  003 L    L   003 L    H      H         L
900  003 H    L   003 L    H      H         L
929  003 H    L   003 L    H      H         L
930  003 H    L   003 L    H      H         H
# RW rises: the same.
1000 003 L    L   004 L    H      H         H
1100 003 L    L   003 L    H      H         H
1120 003 L    L   003 L    H      H         L
1200 003 L    H   003 L    H      H         L
1229 003 L    H   003 L    H      H         L
1230 003 L    H   003 L    H      H         H
# As long as either RW is low nothing ends.
1300 003 L    L   004 L    H      H         H
1400 003 L    L   003 L    H      H         H
1420 003 L    L   003 L    H      H         L
1500 003 L    L   003 L    L      H         L
1540 003 L    H   003 L    L      H         L
1600 003 L    H   003 L    L      H         L
1700 003 L    H   003 L    H      H         L
1730 003 L    H   003 L    H      H         H
