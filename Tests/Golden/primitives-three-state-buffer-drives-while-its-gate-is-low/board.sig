# Gate low: the data. A floating input reads as undefined.
time in _g ==(dT)=> out
0    L  L  3        L
10   H  L  3        H
20   U  L  3        U
30   Z  L  3        U
40   L  L  3        L
# Gate high: floating, whatever the data are.
50   L  H  3        Z
60   H  H  3        Z
70   U  H  3        Z
80   Z  H  3        Z
# Gate undefined or floating: undefined.
90   L  U  3        U
100  H  U  3        U
110  H  H  3        Z
120  H  Z  3        U
130  L  Z  3        U
140  L  L  3        L
150  L  Z  3        U
160  H  L  3        H
