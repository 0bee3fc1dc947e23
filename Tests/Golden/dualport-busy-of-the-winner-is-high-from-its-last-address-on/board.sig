time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# The left side has stood at its address from the start and wins: it has never been undefined, as far as one sees now.
# That its _CE fell later doesn't matter.
0    001 H    L   002 L    H      H         U
10   001 L    L   002 L    H      H         U
19   001 L    L   002 L    H      H         U
20   001 L    L   002 L    H      H         H
100  001 L    L   001 L    H      H         H
120  001 L    L   001 L    H      H         L
200  001 L    L   002 L    H      H         L
223  001 L    L   002 L    H      H         H
# The left side loses.
300  001 L    L   004 L    H      H         H
400  004 L    L   004 L    H      H         H
420  004 L    L   004 L    H      L         H
# The address of the right side goes away, the left one is free at 523.
500  004 L    L   005 L    H      L         H
522  004 L    L   005 L    H      L         H
523  004 L    L   005 L    H      H         H
# The right side loses and leaves at 700. It would be busy up to 723, but it wins at its new address later on,
# and so it has been high since 700.
600  004 L    L   004 L    H      H         H
620  004 L    L   004 L    H      H         L
699  004 L    L   004 L    H      H         L
700  004 L    L   006 L    H      H         H
722  004 L    L   006 L    H      H         H
800  006 L    L   006 L    H      H         H
820  006 L    L   006 L    H      L         H
