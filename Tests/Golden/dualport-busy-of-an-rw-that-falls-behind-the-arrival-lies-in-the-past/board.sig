time AL  _CEL RWL AR  _CER RWR => ram.BUSYL ram.BUSYR
# Both sides have been at one address for long when a RW falls: busy is set back to 20 ns behind the arrival, which is
# past by then; only there, and up to the next look at the pins, the signal shows it.
0    001 L    H   002 L    H      U         U
20   001 L    H   002 L    H      H         H
250  003 L    H   002 L    H      H         H
300  003 L    H   003 L    H      H         H
319  003 L    H   003 L    H      H         H
320  003 L    H   003 L    H      H         L
322  003 L    H   003 L    H      H         L
323  003 L    H   003 L    H      H         H
500  003 L    L   003 L    H      H         H
520  003 L    L   003 L    H      H         H
540  003 L    L   003 L    H      H         H
600  003 L    H   003 L    H      H         H
640  003 L    H   003 L    H      H         H
# RW falls 2 ns behind the arrival, before the first look: busy stands.
700  003 L    H   002 L    H      H         H
800  003 L    H   003 L    H      H         H
802  003 L    H   003 L    L      H         H
819  003 L    H   003 L    L      H         H
820  003 L    H   003 L    L      H         L
823  003 L    H   003 L    L      H         L
850  003 L    H   003 L    L      H         L
900  003 L    H   003 L    H      H         L
929  003 L    H   003 L    H      H         L
930  003 L    H   003 L    H      H         H
# RW falls with the first look.
1000 003 L    H   002 L    H      H         H
1100 003 L    H   003 L    H      H         H
1103 003 L    H   003 L    L      H         H
1119 003 L    H   003 L    L      H         H
1120 003 L    H   003 L    L      H         L
1150 003 L    H   003 L    L      H         L
1200 003 L    H   003 L    H      H         L
1230 003 L    H   003 L    H      H         H
# RW falls 1 ns behind the first look: high again 3 ns later.
1300 003 L    H   002 L    H      H         H
1400 003 L    H   003 L    H      H         H
1404 003 L    H   003 L    L      H         H
1419 003 L    H   003 L    L      H         H
1420 003 L    H   003 L    L      H         L
1422 003 L    H   003 L    L      H         L
1423 003 L    H   003 L    L      H         H
1500 003 L    H   003 L    L      H         H
