time a b c d
0 F F HLZ z
10 10 10 HL 2h
20 ~1 X Z U
30 hL 1L U1 ZH
