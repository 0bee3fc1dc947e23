time idle => osc.out
0    L       H
49   L       H
50   L       L
100  L       H
