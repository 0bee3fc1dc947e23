time u.E1 u.A1 u.E2 u.A2 ==(dT)=> u.O1 u.O2
0    L    LL   L    LL   38       HHHL HHHL
100  H    LL   L    XH   38       HHHH HHHH
