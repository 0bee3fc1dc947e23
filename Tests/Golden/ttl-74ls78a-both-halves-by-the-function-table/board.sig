time _CLR _CLK _1PRE 1J 1K _2PRE 2J 2K ==(dT)=> 1Q _1Q 2Q _2Q
0    L    H    H     L  L  H     H  H  20       L  H   L  H
# set the first, toggle the second
100  H    H    H     H  L  H     H  H  20       L  H   L  H
200  H    L    H     H  L  H     H  H  20       H  L   H  L
# reset the first, hold the second
300  H    H    H     L  H  H     L  L  20       H  L   H  L
400  H    L    H     L  H  H     L  L  20       L  H   H  L
# toggle the first, reset the second
500  H    H    H     H  H  H     L  H  20       L  H   H  L
600  H    L    H     H  H  H     L  H  20       H  L   L  H
# hold the first, set the second
700  H    H    H     L  L  H     H  L  20       H  L   L  H
800  H    L    H     L  L  H     H  L  20       H  L   H  L
# reset and toggle both, which end up alike
900  H    H    H     L  H  H     H  H  20       H  L   H  L
1000 H    L    H     L  H  H     H  H  20       L  H   L  H
# preset waits for no clock and lets none through
1100 H    L    L     L  H  H     L  L  20       H  L   L  H
1200 H    H    L     L  H  H     L  L  20       H  L   L  H
1300 H    L    L     L  H  L     L  H  20       H  L   H  L
1400 H    L    H     L  H  H     L  H  20       H  L   H  L
# clear likewise
1500 L    L    H     H  L  H     H  L  20       L  H   L  H
1600 L    H    H     H  L  H     H  L  20       L  H   L  H
1700 L    L    H     H  L  H     H  L  20       L  H   L  H
# clear against preset
1800 L    L    L     H  L  H     H  L  20       U  U   L  H
1900 L    L    H     H  L  L     H  L  20       L  H   U  U
2000 L    L    L     H  L  L     H  L  20       U  U   U  U
2100 H    L    L     H  L  L     H  L  20       H  L   H  L
2200 L    L    H     H  L  H     H  L  20       L  H   L  H
2300 H    L    H     H  L  H     H  L  20       L  H   L  H
