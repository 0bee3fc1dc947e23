time idle => osc.out
0    L       H
999  L       L
