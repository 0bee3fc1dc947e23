o1(frequency=20000000, offset=5)
o2(frequency=0)
time idle => o1.out o2.out
0    L       H      H
25   L       H      H
49   L       H      H
50   L       L      L
99   L       L      L
100  L       H      H
150  L       L      L
