time a ==(dT)=> u.Y1 u.Y2 u.Y3 u.Y4 u.Y5 u.Y6
0    L 10       H    U    H    U    U    H
100  H 10       L    U    L    U    U    L
200  Z 10       U    U    U    U    U    U
300  L 10       H    U    H    U    U    H
