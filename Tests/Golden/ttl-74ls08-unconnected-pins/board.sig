time a ==(dT)=> Y1 Y2 Y3 Y4
0    L 13       L  L  L  L
100  H 13       U  U  U  U
200  L 13       L  L  L  L
300  Z 13       U  U  U  U
400  H 13       U  U  U  U
