time C B A _GL G1 _G2 ==(dT)=> Y
# transparent: address 2
0    L H L L   L  L   38       HHHHHHHH
100  L H L L   L  H   38       HHHHHHHH
200  L H L L   H  L   38       HHHHHLHH
300  L H L L   H  H   38       HHHHHHHH
# latched: 5 stands in the latch, 2 on the pins
400  H L H L   H  L   38       HHLHHHHH
500  H L H H   H  L   38       HHLHHHHH
600  L H L H   L  L   38       HHHHHHHH
700  L H L H   L  H   38       HHHHHHHH
800  L H L H   H  L   38       HHLHHHHH
900  L H L H   H  H   38       HHHHHHHH
1000 L H L H   H  L   38       HHLHHHHH
# an undefined enable still pulls the line low that the pins say, also over the latch
1100 L H L L   H  U   38       HHHHHLHH
1200 L H L L   U  L   38       HHHHHLHH
1300 L H L L   U  U   38       HHHHHLHH
1400 L H L L   L  L   38       HHHHHHHH
1500 H L H L   H  L   38       HHLHHHHH
1600 L H L H   H  U   38       HHHHHLHH
1700 L H L H   U  L   38       HHHHHLHH
1800 L H L H   U  U   38       HHHHHLHH
1900 L H H H   U  U   38       HHHHLHHH
2000 L H H H   H  L   38       HHLHHHHH
2100 L H L U   H  U   38       HHHHHLHH
2200 L H L U   U  L   38       HHHHHLHH
2300 L H L U   U  U   38       HHHHHLHH
2400 H H L U   U  U   38       HLHHHHHH
# not if the other enable is off
2500 L H L L   L  U   38       HHHHHHHH
2600 L H L L   U  H   38       HHHHHHHH
2700 L H L H   L  U   38       HHHHHHHH
2800 L H L H   U  H   38       HHHHHHHH
2900 L H L U   L  U   38       HHHHHHHH
3000 L H L U   U  H   38       HHHHHHHH
# an undefined latch enable gives neither the pins nor the latch
3100 L H L L   H  L   38       HHHHHLHH
3200 L H L U   H  L   38       HHHHHHHH
3300 L H L U   L  L   38       HHHHHHHH
3400 L H L U   H  H   38       HHHHHHHH
3500 L H L H   H  L   38       HHHHHLHH
3600 H L H U   H  L   38       HHHHHHHH
3700 H L H H   H  L   38       HHHHHLHH
# floating enables count as undefined
3800 H L H Z   H  L   38       HHHHHHHH
3900 H L H H   H  L   38       HHHHHLHH
4000 H L H H   Z  L   38       HHLHHHHH
4100 H L H H   H  Z   38       HHLHHHHH
4200 H L H L   Z  Z   38       HHLHHHHH
4300 H L H L   L  Z   38       HHHHHHHH
4400 H L H L   Z  H   38       HHHHHHHH
4500 H L H L   H  L   38       HHLHHHHH
