time a ==(dT)=> q
0  0 2  U
10 1 2  H   # 12: still the old value
20 0 3b H   # the digits in front are read
30 1 13 L
