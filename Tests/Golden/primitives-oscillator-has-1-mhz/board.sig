# High from 0 on, for 500 ns of 1000.
time idle => osc.out
0    L       H
1    L       H
499  L       H
500  L       L
999  L       L
1000 L       H
1499 L       H
1500 L       L
1999 L       L
2000 L       H
2499 L       H
2500 L       L
