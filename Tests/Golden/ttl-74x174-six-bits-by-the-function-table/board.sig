time _CLR CLK 1D 2D 3D 4D 5D 6D ==(dT)=> 1Q 2Q 3Q 4Q 5Q 6Q
0    L    L   H  H  H  H  H  H  35       L  L  L  L  L  L
100  H    L   H  H  H  H  H  H  35       L  L  L  L  L  L
# a single one in each place
200  H    H   H  L  L  L  L  L  35       H  L  L  L  L  L
300  H    L   L  H  L  L  L  L  35       H  L  L  L  L  L
400  H    H   L  H  L  L  L  L  35       L  H  L  L  L  L
500  H    L   L  L  H  L  L  L  35       L  H  L  L  L  L
600  H    H   L  L  H  L  L  L  35       L  L  H  L  L  L
700  H    L   L  L  L  H  L  L  35       L  L  H  L  L  L
800  H    H   L  L  L  H  L  L  35       L  L  L  H  L  L
900  H    L   L  L  L  L  H  L  35       L  L  L  H  L  L
1000 H    H   L  L  L  L  H  L  35       L  L  L  L  H  L
1100 H    L   L  L  L  L  L  H  35       L  L  L  L  H  L
1200 H    H   L  L  L  L  L  H  35       L  L  L  L  L  H
# neither the high level nor the flank to low stores
1300 H    H   H  H  H  H  H  H  35       L  L  L  L  L  H
1400 H    L   H  H  H  H  H  H  35       L  L  L  L  L  H
1500 H    H   H  H  H  H  H  H  35       H  H  H  H  H  H
# clear waits for no clock and lets none through
1600 L    H   H  H  H  H  H  H  35       L  L  L  L  L  L
1700 L    L   H  H  H  H  H  H  35       L  L  L  L  L  L
1800 L    H   H  H  H  H  H  H  35       L  L  L  L  L  L
1900 H    H   H  H  H  H  H  H  35       L  L  L  L  L  L
2000 H    L   H  L  H  L  H  L  35       L  L  L  L  L  L
2100 H    H   H  L  H  L  H  L  35       H  L  H  L  H  L
2200 H    L   L  H  L  H  L  H  35       H  L  H  L  H  L
2300 H    H   L  H  L  H  L  H  35       L  H  L  H  L  H
