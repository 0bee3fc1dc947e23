time      idle => s16.out s1_5.out
0         L       H       H
31249999  L       H       H
31250000  L       L       H
62499999  L       L       H
62500000  L       H       H
93749999  L       H       H
93750000  L       L       H
333333332 L       H       H
333333333 L       H       L
343750000 L       L       L
375000000 L       H       L
666666665 L       L       L
666666666 L       L       H
