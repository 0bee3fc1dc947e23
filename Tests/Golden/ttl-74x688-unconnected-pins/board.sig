time _G P  Q  ==(dT)=> no_g._P=Q no_p._P=Q no_q._P=Q open._P=Q
0    L  11 11 25       U         U         U         U
100  H  11 11 25       U         H         H         U
200  L  11 12 25       U         U         U         U
300  H  12 12 25       U         H         H         U
