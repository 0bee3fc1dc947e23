time _SD _CD CP D ==(dT)=> Q _Q
0    H   L   L  L 35       L H
# clear, preset high
100  H   U   L  L 35       U U
200  H   L   L  L 35       L H
300  H   Z   L  L 35       U U
# preset, clear high
400  L   H   L  L 35       H L
500  U   H   L  L 35       U U
600  L   H   L  L 35       H L
700  Z   H   L  L 35       U U
# one of them low does not help
800  L   H   L  L 35       H L
900  L   U   L  L 35       U U
1000 L   H   L  L 35       H L
1100 L   Z   L  L 35       U U
1200 H   L   L  L 35       L H
1300 U   L   L  L 35       U U
1400 H   L   L  L 35       L H
1500 Z   L   L  L 35       U U
1600 H   L   L  L 35       L H
1700 U   U   L  L 35       U U
# both high again write nothing without a clock
1800 H   H   L  H 35       U U
1900 H   H   H  H 35       H L
# data
2000 H   H   L  U 35       H L
2100 H   H   H  U 35       U U
2200 H   H   L  L 35       U U
2300 H   H   H  L 35       L H
2400 H   H   L  Z 35       L H
2500 H   H   H  Z 35       U U
2600 H   H   L  H 35       U U
2700 H   H   H  H 35       H L
