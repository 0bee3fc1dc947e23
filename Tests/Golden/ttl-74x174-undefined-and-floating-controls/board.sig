time _CLR CLK a b ==(dT)=> 1Q 2Q 5Q 6Q
0    L    L   H L 35       L  L  L  L
100  H    L   H L 35       L  L  L  L
200  H    H   H L 35       H  L  H  L
# clear
300  U    H   H L 35       U  U  U  U
400  H    H   H L 35       U  U  U  U
500  L    H   H L 35       L  L  L  L
600  H    L   H L 35       L  L  L  L
700  H    H   H L 35       H  L  H  L
800  Z    H   H L 35       U  U  U  U
900  L    L   H L 35       L  L  L  L
# the clock, from and to an undefined level
1000 H    U   H L 35       U  U  U  U
1100 H    H   H L 35       U  U  U  U
1200 H    L   H L 35       U  U  U  U
1300 H    H   H L 35       H  L  H  L
1400 H    Z   H L 35       U  U  U  U
1500 H    L   H L 35       U  U  U  U
1600 H    H   L H 35       L  H  L  H
# it does not matter while cleared
1700 L    U   L H 35       L  L  L  L
1800 H    U   L H 35       U  U  U  U
1900 U    U   L H 35       U  U  U  U
2000 L    Z   L H 35       L  L  L  L
2100 H    L   L H 35       U  U  U  U
# data, bit by bit
2200 H    H   U H 35       U  H  U  H
2300 H    L   Z H 35       U  H  U  H
2400 H    H   Z H 35       U  H  U  H
2500 H    L   H Z 35       U  H  U  H
2600 H    H   H Z 35       H  U  H  U
