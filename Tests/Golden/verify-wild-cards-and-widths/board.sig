time a b => q p
0  HL 1 X  HX  # a lone X matches any width; HX is cut to X
10 HL 1 H  X   # too short
20 HL 1 2  1   # LLHL is cut to HL
30 HL 0 hl l
40 HL 0 hX x   # a small x is no wild card
50 HZ 0 HU L
60 1Z 0 H  L
