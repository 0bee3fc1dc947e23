time A1 C1 A2 C2 A3 C3 A4 C4 ==(dT)=> bus read
# nobody drives
0    H  H  L  H  H  H  L  H  25       Z   U
# each in turn, low and high
100  L  L  H  H  H  H  H  H  25       L   L
200  H  L  L  H  L  H  L  H  25       H   H
300  H  H  L  L  H  H  H  H  25       L   L
400  L  H  H  L  L  H  L  H  25       H   H
500  H  H  H  H  L  L  H  H  25       L   L
600  L  H  L  H  H  L  L  H  25       H   H
700  H  H  H  H  H  H  L  L  25       L   L
800  L  H  L  H  L  H  H  L  25       H   H
# the wire is handed over without a gap
900  H  L  L  H  H  H  L  H  25       H   H
1000 H  H  L  L  H  H  L  H  25       L   L
# released
1100 H  H  L  H  H  H  L  H  25       Z   U
# two at once, even if they agree
1200 H  L  L  L  H  H  L  H  25       U   U
1300 H  L  L  H  H  L  L  H  25       U   U
1400 H  H  L  L  H  H  L  L  25       U   U
1500 H  L  H  L  H  L  H  L  25       U   U
1600 H  L  L  H  H  H  L  H  25       H   H
# an undefined or floating enable, alone and beside a driver
1700 H  U  H  H  H  H  H  H  25       U   U
1800 H  Z  H  H  H  H  H  H  25       U   U
1900 H  H  H  U  H  H  H  H  25       U   U
2000 H  H  H  Z  H  H  H  H  25       U   U
2100 H  H  H  H  H  U  H  H  25       U   U
2200 H  H  H  H  H  Z  H  H  25       U   U
2300 H  H  H  H  H  H  H  U  25       U   U
2400 H  H  H  H  H  H  H  Z  25       U   U
2500 H  L  H  U  H  H  H  H  25       U   U
2600 H  Z  H  L  H  H  H  H  25       U   U
# undefined data of the one driver, and of one that is off
2700 U  L  H  H  H  H  H  H  25       U   U
2800 U  H  H  L  H  H  H  H  25       H   H
2900 Z  L  H  H  H  H  H  H  25       U   U
3000 H  H  H  H  H  H  H  H  25       Z   U
