time _CLR _CLK _1PRE 1J 1K ==(dT)=> 1Q _1Q 2Q _2Q
0    L    H    H     L  L  20       L  H   L  H
100  H    H    H     L  L  20       L  H   L  H
200  H    L    H     L  L  20       L  H   H  L
# preset
300  H    L    U     L  L  20       U  U   H  L
400  H    L    H     L  L  20       U  U   H  L
500  H    L    L     L  L  20       H  L   H  L
600  H    L    Z     L  L  20       U  U   H  L
700  H    H    Z     L  L  20       U  U   H  L
800  H    L    Z     L  L  20       U  U   L  H
900  L    L    H     L  L  20       L  H   L  H
# preset, while cleared
1000 L    L    U     L  L  20       U  U   L  H
1100 L    L    H     L  L  20       L  H   L  H
1200 L    L    Z     L  L  20       U  U   L  H
1300 L    L    H     L  L  20       L  H   L  H
# clear: both halves, whatever their preset
1400 U    L    H     L  L  20       U  U   U  U
1500 H    L    H     L  L  20       U  U   U  U
1600 L    L    H     L  L  20       L  H   L  H
1700 Z    L    H     L  L  20       U  U   U  U
1800 Z    L    L     L  L  20       U  U   U  U
1900 H    L    L     L  L  20       H  L   U  U
2000 L    L    H     L  L  20       L  H   L  H
2100 U    U    H     L  L  20       U  U   U  U
