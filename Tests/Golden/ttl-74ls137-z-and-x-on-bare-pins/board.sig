time u.C u.B u.A u._GL u.G1 u._G2 ==(dT)=> u.Y
0    L   H   H   L     H    L     38       HHHHLHHH
# enables
100  L   H   H   L     Z    L     38       HHHHHHHH
200  L   H   H   L     X    L     38       HHHHHHHH
300  L   H   H   L     H    Z     38       HHHHHHHH
400  L   H   H   L     H    X     38       HHHHHHHH
500  L   H   H   L     Z    U     38       HHHHHHHH
600  L   H   H   L     U    Z     38       HHHHHHHH
700  L   H   H   L     Z    Z     38       HHHHHHHH
800  L   H   H   L     U    L     38       HHHHLHHH
900  L   H   H   L     H    U     38       HHHHLHHH
1000 L   H   H   Z     H    U     38       HHHHLHHH
1100 L   H   H   X     U    L     38       HHHHLHHH
# latch enable
1200 L   H   H   Z     H    L     38       HHHHHHHH
1300 L   H   H   X     H    L     38       HHHHHHHH
1400 H   L   L   Z     H    L     38       HHHHHHHH
1500 L   H   L   H     H    L     38       HHHHLHHH
1600 H   L   L   H     H    L     38       HHHHLHHH
1700 H   H   H   L     H    L     38       LHHHHHHH
1800 H   L   L   X     H    L     38       HHHHHHHH
1900 H   L   L   H     H    L     38       LHHHHHHH
# address
2000 H   H   Z   L     H    L     38       HLHHHHHH
2100 H   X   H   L     H    L     38       HHLHHHHH
2200 Z   H   X   L     H    L     38       HHHHHLHH
2300 H   H   H   H     H    L     38       HHHHHLHH
