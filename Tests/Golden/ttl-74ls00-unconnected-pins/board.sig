time a ==(dT)=> Y1 Y2 Y3 Y4
0    L 10       H  H  H  H
100  H 10       U  U  U  U
200  L 10       H  H  H  H
300  Z 10       U  U  U  U
400  H 10       U  U  U  U
