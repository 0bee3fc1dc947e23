# From the start, undefined up to the delay.
time in _g => q0 q3 q7 q16
0    L  L     L  U  U  U
2    L  L     L  U  U  U
3    L  L     L  L  U  U
6    L  L     L  L  U  U
7    L  L     L  L  L  U
15   L  L     L  L  L  U
16   L  L     L  L  L  L
# Data.
99   L  L     L  L  L  L
100  H  L     H  L  L  L
102  H  L     H  L  L  L
103  H  L     H  H  L  L
106  H  L     H  H  L  L
107  H  L     H  H  H  L
115  H  L     H  H  H  L
116  H  L     H  H  H  H
# Off.
199  H  L     H  H  H  H
200  H  H     Z  H  H  H
202  H  H     Z  H  H  H
203  H  H     Z  Z  H  H
206  H  H     Z  Z  H  H
207  H  H     Z  Z  Z  H
215  H  H     Z  Z  Z  H
216  H  H     Z  Z  Z  Z
# On, with other data.
300  L  L     L  Z  Z  Z
302  L  L     L  Z  Z  Z
303  L  L     L  L  Z  Z
306  L  L     L  L  Z  Z
307  L  L     L  L  L  Z
315  L  L     L  L  L  Z
316  L  L     L  L  L  L
