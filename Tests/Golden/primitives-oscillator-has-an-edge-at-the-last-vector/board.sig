time idle => osc.out
0    L       H
1000 L       H
