time AL          _CEL RWL AR          _CER RWR => ram.BUSYL ram.BUSYR
# Both addresses are undefined, and so the same. The right side loses the tie; the left one has always been high,
# as its address never changed.
0    U           L    L   U           L    H      H         U
19   U           L    L   U           L    H      H         U
20   U           L    L   U           L    H      H         L
99   U           L    L   U           L    H      H         L
# One of them gets a value.
100  001         L    L   U           L    H      H         L
122  001         L    L   U           L    H      H         L
123  001         L    L   U           L    H      H         H
# The other one goes from undefined to undefined bits: equal letters are equal addresses.
200  001         L    L   LLLLLLLLLLU L    H      H         H
223  001         L    L   LLLLLLLLLLU L    H      H         H
300  LLLLLLLLLLU L    L   LLLLLLLLLLU L    H      H         H
319  LLLLLLLLLLU L    L   LLLLLLLLLLU L    H      H         H
320  LLLLLLLLLLU L    L   LLLLLLLLLLU L    H      L         H
399  LLLLLLLLLLU L    L   LLLLLLLLLLU L    H      L         H
400  LLLLLLLLLUL L    L   LLLLLLLLLLU L    H      H         H
422  LLLLLLLLLUL L    L   LLLLLLLLLLU L    H      H         H
423  LLLLLLLLLUL L    L   LLLLLLLLLLU L    H      H         H
# Floating bits are undefined ones.
500  LLLLLLLLLUL L    L   LLLLLLLLLZL L    H      H         H
519  LLLLLLLLLUL L    L   LLLLLLLLLZL L    H      H         H
520  LLLLLLLLLUL L    L   LLLLLLLLLZL L    H      H         L
600  LLLLLLLLLUL L    L   001         L    H      H         L
623  LLLLLLLLLUL L    L   001         L    H      H         H
