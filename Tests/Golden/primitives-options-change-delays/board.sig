t(delay=5)
b(delay=0x14)
f(delay=7)
x(delay=1)
# line is clock, gate, data.
time line => y3 y0 qt Q qb
0    LLL     U  U  U  U U
1    LLL     H  L  U  U U
4    LLL     H  L  U  U U
5    LLL     H  L  L  U U
19   LLL     H  L  L  U U
20   LLL     H  L  L  U L
100  HLH     H  L  L  U L
101  HLH     L  H  L  U L
104  HLH     L  H  L  U L
105  HLH     L  H  H  U L
106  HLH     L  H  H  U L
107  HLH     L  H  H  H L
119  HLH     L  H  H  H L
120  HLH     L  H  H  H H
200  LHH     L  H  H  H H
201  LHH     H  H  H  H H
204  LHH     H  H  H  H H
205  LHH     H  H  Z  H H
206  LHH     H  H  Z  H H
207  LHH     H  H  Z  Z H
219  LHH     H  H  Z  Z H
220  LHH     H  H  Z  Z Z
