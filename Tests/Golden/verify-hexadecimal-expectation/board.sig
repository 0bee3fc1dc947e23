time a => q
0 HLHL A
10 6 LHHL
20 6 A
