time u.D u.C u.B u.A u._G1 u._G2 ==(dT)=> u.Y              u.Y0 u.Y7 u.Y11 u.Y15
0    H   H   H   H   L     L     23       LHHHHHHHHHHHHHHH H    H    H     L
# address
100  Z   H   H   H   L     L     23       HHHHHHHHLHHHHHHH H    L    H     H
200  H   Z   H   H   L     L     23       HHHHLHHHHHHHHHHH H    H    L     H
300  H   H   Z   H   L     L     23       HHLHHHHHHHHHHHHH H    H    H     H
400  H   H   H   Z   L     L     23       HLHHHHHHHHHHHHHH H    H    H     H
500  X   H   H   H   L     L     23       HHHHHHHHLHHHHHHH H    L    H     H
600  H   X   H   H   L     L     23       HHHHLHHHHHHHHHHH H    H    L     H
700  H   H   X   H   L     L     23       HHLHHHHHHHHHHHHH H    H    H     H
800  H   H   H   X   L     L     23       HLHHHHHHHHHHHHHH H    H    H     H
900  Z   H   Z   H   L     L     23       HHHHHHHHHHLHHHHH H    H    H     H
1000 Z   Z   Z   Z   L     L     23       HHHHHHHHHHHHHHHL L    H    H     H
1100 X   X   X   X   L     L     23       HHHHHHHHHHHHHHHL L    H    H     H
1200 Z   U   Z   Z   L     L     23       UUUUUUUUUUUUUUUU U    U    U     U
1300 H   H   H   H   L     L     23       LHHHHHHHHHHHHHHH H    H    H     L
# enables
1400 H   L   H   H   Z     L     23       HHHHHHHHHHHHHHHH H    H    H     H
1500 H   L   H   H   L     Z     23       HHHHHHHHHHHHHHHH H    H    H     H
1600 H   L   H   H   X     L     23       HHHHHHHHHHHHHHHH H    H    H     H
1700 H   L   H   H   L     X     23       HHHHHHHHHHHHHHHH H    H    H     H
1800 H   L   H   H   L     L     23       HHHHLHHHHHHHHHHH H    H    L     H
1900 H   L   H   H   Z     Z     23       HHHHHHHHHHHHHHHH H    H    H     H
2000 H   L   H   H   Z     X     23       HHHHHHHHHHHHHHHH H    H    H     H
2100 H   L   H   H   Z     H     23       HHHHHHHHHHHHHHHH H    H    H     H
2200 H   L   H   H   H     X     23       HHHHHHHHHHHHHHHH H    H    H     H
2300 H   L   H   H   L     L     23       HHHHLHHHHHHHHHHH H    H    L     H
# beside an undefined one
2400 H   L   H   H   Z     U     23       UUUUUUUUUUUUUUUU U    U    U     U
2500 H   L   H   H   U     X     23       UUUUUUUUUUUUUUUU U    U    U     U
2600 H   L   H   H   L     L     23       HHHHLHHHHHHHHHHH H    H    L     H
# an undefined address bit shows all the same
2700 H   L   H   U   Z     H     23       UUUUUUUUUUUUUUUU U    U    U     U
2800 H   L   H   Z   Z     H     23       HHHHHHHHHHHHHHHH H    H    H     H
2900 H   L   H   H   L     L     23       HHHHLHHHHHHHHHHH H    H    L     H
