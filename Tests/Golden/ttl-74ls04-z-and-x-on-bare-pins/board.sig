time u.A1 u.A2 u.A3 u.A4 u.A5 u.A6 ==(dT)=> u.Y1 u.Y2 u.Y3 u.Y4 u.Y5 u.Y6
0    L    H    U    Z    X    L    10       H    L    U    L    L    H
100  H    U    Z    X    L    H    10       L    U    L    L    H    L
200  U    Z    X    L    H    U    10       U    L    L    H    L    U
300  Z    X    L    H    U    Z    10       L    L    H    L    U    L
400  X    L    H    U    Z    X    10       L    H    L    U    L    L
