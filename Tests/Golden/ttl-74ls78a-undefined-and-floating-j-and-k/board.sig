time _CLR _CLK _1PRE 1J 1K ==(dT)=> 1Q _1Q 2Q _2Q
0    L    H    H     H  L  20       L  H   L  H
100  H    H    H     H  L  20       L  H   L  H
200  H    L    H     H  L  20       H  L   H  L
# J: nothing before the clock falls
300  H    H    H     U  L  20       H  L   H  L
400  H    L    H     U  L  20       U  U   L  H
# a hold keeps what is undefined
500  H    H    H     L  L  20       U  U   L  H
600  H    L    H     L  L  20       U  U   H  L
700  H    H    H     L  H  20       U  U   H  L
800  H    L    H     L  H  20       L  H   L  H
# K
900  H    H    H     L  U  20       L  H   L  H
1000 H    L    H     L  U  20       U  U   H  L
1100 H    H    H     H  L  20       U  U   H  L
1200 H    L    H     H  L  20       H  L   L  H
1300 H    H    H     Z  H  20       H  L   L  H
1400 H    L    H     Z  H  20       U  U   H  L
1500 H    H    H     H  L  20       U  U   H  L
1600 H    L    H     H  L  20       H  L   L  H
1700 H    H    H     H  Z  20       H  L   L  H
1800 H    L    H     H  Z  20       U  U   H  L
1900 H    H    H     L  H  20       U  U   H  L
2000 H    L    H     L  H  20       L  H   L  H
2100 H    H    H     U  U  20       L  H   L  H
2200 H    L    H     U  U  20       U  U   H  L
2300 L    L    H     U  U  20       L  H   L  H
