time A1 A2 A3 A4 A5 A6 ==(dT)=> Y1 Y2 Y3 Y4 Y5 Y6
# one input high, one low
0    H  L  L  L  L  L  10       L  H  H  H  H  H
100  L  H  L  L  L  L  10       H  L  H  H  H  H
200  L  L  H  L  L  L  10       H  H  L  H  H  H
300  L  L  L  H  L  L  10       H  H  H  L  H  H
400  L  L  L  L  H  L  10       H  H  H  H  L  H
500  L  L  L  L  L  H  10       H  H  H  H  H  L
600  L  H  H  H  H  H  10       H  L  L  L  L  L
700  H  L  H  H  H  H  10       L  H  L  L  L  L
800  H  H  L  H  H  H  10       L  L  H  L  L  L
900  H  H  H  L  H  H  10       L  L  L  H  L  L
1000 H  H  H  H  L  H  10       L  L  L  L  H  L
1100 H  H  H  H  H  L  10       L  L  L  L  L  H
# undefined, then floating
1200 U  H  L  H  L  H  10       U  L  H  L  H  L
1300 L  U  L  H  L  H  10       H  U  H  L  H  L
1400 L  H  U  H  L  H  10       H  L  U  L  H  L
1500 L  H  L  U  L  H  10       H  L  H  U  H  L
1600 L  H  L  H  U  H  10       H  L  H  L  U  L
1700 L  H  L  H  L  U  10       H  L  H  L  H  U
1800 Z  L  H  L  H  L  10       U  H  L  H  L  H
1900 H  Z  H  L  H  L  10       L  U  L  H  L  H
2000 H  L  Z  L  H  L  10       L  H  U  H  L  H
2100 H  L  H  Z  H  L  10       L  H  L  U  L  H
2200 H  L  H  L  Z  L  10       L  H  L  H  U  H
2300 H  L  H  L  H  Z  10       L  H  L  H  L  U
2400 L  L  L  H  H  H  10       H  H  H  L  L  L
