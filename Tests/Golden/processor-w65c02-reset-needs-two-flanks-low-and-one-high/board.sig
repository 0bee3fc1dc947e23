# A line is a cycle; _RES changes in the middle of it and counts at the falling flank at its end.
time _RES => cpu.A cpu.SYNC
# the reset sequence of the start
350  H       0000  L
550  H       0100  L
750  H       01FF  L
950  H       01FE  L
1150 H       FFFC  L
1350 H       FFFD  L
1550 H       EAEA  H
# low at one flank: nothing
1750 L       EAEB  L
1950 H       EAEB  H
2150 H       EAEC  L
# low at two flanks: reset by the first flank that finds it high
2350 L       EAEC  H
2550 L       EAED  L
2750 H       EAED  H
2950 H       0000  L
3150 H       0100  L
3350 H       01FF  L
3550 H       01FE  L
3750 H       FFFC  L
3950 H       FFFD  L
4150 H       EAEA  H
# low at one flank, twice
4350 L       EAEB  L
4550 H       EAEB  H
4750 L       EAEC  L
4950 H       EAEC  H
# low, neither, low, high: two
5150 L       EAED  L
5350 U       EAED  H
5550 Z       EAEE  L
5750 L       EAEE  H
5950 H       EAEF  L
6150 H       0000  L
6350 H       0100  L
6550 H       01FF  L
6750 H       01FE  L
6950 H       FFFC  L
7150 H       FFFD  L
# neither of the two ends it before it is high
7350 L       EAEA  H
7550 L       EAEB  L
7750 U       EAEB  H
7950 Z       EAEC  L
8150 H       EAEC  H
8350 H       0000  L
8550 H       0100  L
8750 H       01FF  L
8950 H       01FE  L
9150 H       FFFC  L
9350 H       FFFD  L
