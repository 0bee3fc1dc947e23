time _CLR _CLK _1PRE 1J 1K ==(dT)=> 1Q _1Q 2Q _2Q
0    L    L    H     H  L  20       L  H   L  H
100  H    L    H     H  L  20       L  H   L  H
# rising, then falling
200  H    H    H     H  L  20       L  H   L  H
300  H    L    H     H  L  20       H  L   H  L
# an undefined level stores nothing and spoils nothing, from and to
400  H    U    H     L  H  20       H  L   H  L
500  H    L    H     L  H  20       H  L   H  L
600  H    H    H     L  H  20       H  L   H  L
700  H    U    H     L  H  20       H  L   H  L
800  H    H    H     L  H  20       H  L   H  L
900  H    Z    H     L  H  20       H  L   H  L
1000 H    L    H     L  H  20       H  L   H  L
1100 H    Z    H     L  H  20       H  L   H  L
1200 H    L    H     L  H  20       H  L   H  L
1300 H    X    H     L  H  20       H  L   H  L
1400 H    L    H     L  H  20       H  L   H  L
1500 H    H    H     L  H  20       H  L   H  L
1600 H    L    H     L  H  20       L  H   L  H
# the level alone does nothing
1700 H    L    H     H  L  20       L  H   L  H
1800 H    H    H     H  L  20       L  H   L  H
1900 H    H    H     L  H  20       L  H   L  H
