time a c ==(dT)=> u.Y1 u.Y2 u.Y3 u.Y4
0    H L 25       U    U    U    U
100  H H 25       U    Z    Z    U
200  L L 25       U    U    U    U
300  L H 25       U    Z    Z    U
