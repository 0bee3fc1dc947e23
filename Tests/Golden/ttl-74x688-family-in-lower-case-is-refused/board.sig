time _G P  Q  ==(dT)=> u._P=Q
0    L  11 11 25       L
100  L  11 12 25       H
