# The first half starts undefined and stays so; the second is preset.
time _CLR _CLK _1PRE 1J 1K _2PRE 2J 2K ==(dT)=> 1Q _1Q 2Q _2Q
0    H    H    H     H  H  L     H  H  20       U  U   H  L
100  H    H    H     H  H  H     H  H  20       U  U   H  L
200  H    L    H     H  H  H     H  H  20       U  U   L  H
300  H    H    H     H  H  H     H  H  20       U  U   L  H
400  H    L    H     H  H  H     H  H  20       U  U   H  L
# setting the first makes it known
500  H    H    H     H  L  H     H  H  20       U  U   H  L
600  H    L    H     H  L  H     H  H  20       H  L   L  H
700  H    H    H     H  H  H     H  H  20       H  L   L  H
800  H    L    H     H  H  H     H  H  20       L  H   H  L
900  H    H    H     H  H  H     H  H  20       L  H   H  L
1000 H    L    H     H  H  H     H  H  20       H  L   L  H
1100 H    H    H     H  H  H     H  H  20       H  L   L  H
1200 H    L    H     H  H  H     H  H  20       L  H   H  L
