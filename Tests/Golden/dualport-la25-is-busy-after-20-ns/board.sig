time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# The left side writes, the right one reads at another address. BUSY is defined 20 ns after the first look at the pins;
# that of the left side has been high since its address came, as it wins later on.
0    005 L    L   010 L    H      H         U
19   005 L    L   010 L    H      H         U
20   005 L    L   010 L    H      H         H
# The right side comes to the same address: busy 20 ns after it.
300  005 L    L   005 L    H      H         H
319  005 L    L   005 L    H      H         H
320  005 L    L   005 L    H      H         L
# It leaves: free 20 ns after the output hold has run out.
600  005 L    L   010 L    H      H         L
622  005 L    L   010 L    H      H         L
623  005 L    L   010 L    H      H         H
# The left side comes to the address of the right one.
800  005 L    L   020 L    H      H         H
900  020 L    L   020 L    H      H         H
919  020 L    L   020 L    H      H         H
920  020 L    L   020 L    H      L         H
1200 005 L    L   020 L    H      L         H
1222 005 L    L   020 L    H      L         H
1223 005 L    L   020 L    H      H         H
# The right side is at the same address, and its _CE falls.
1500 006 L    L   006 H    H      H         H
1800 006 L    L   006 L    H      H         H
1819 006 L    L   006 L    H      H         H
1820 006 L    L   006 L    H      H         L
# _CE rises: free 20 ns after the outputs float.
2100 006 L    L   006 H    H      H         L
2129 006 L    L   006 H    H      H         L
2130 006 L    L   006 H    H      H         H
# RW rises while both are there: free 30 ns behind that.
2400 006 L    L   030 L    H      H         H
2700 006 L    L   006 L    H      H         H
2720 006 L    L   006 L    H      H         L
3000 006 L    H   006 L    H      H         L
3029 006 L    H   006 L    H      H         L
3030 006 L    H   006 L    H      H         H
