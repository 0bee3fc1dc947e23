# The stimuli have scheduled buf for 3 ns behind each edge before the option holds; it then looks 7 ns back.
buf(delay=7)
time in _g => out
0    L  L     U
3    L  L     U
10   H  L     U
12   H  L     U
13   H  L     L
20   H  H     L
22   H  H     L
23   H  H     H
30   L  H     H
33   L  H     Z
40   L  L     Z
43   L  L     Z
50   L  U     Z
53   L  U     L
