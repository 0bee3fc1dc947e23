time a ==(dT)=> Y1 Y2 Y3 Y4
0    L 14       U  U  U  U
100  H 14       H  H  H  H
200  L 14       U  U  U  U
300  Z 14       U  U  U  U
400  H 14       H  H  H  H
