time D_U CLK _LOAD high low ==(dT)=> QH QL carry
0    L   L   L     1    E   104      1  E  H
200  L   L   H     0    0   104      1  E  H
400  L   H   H     0    0   104      1  F  H
600  L   L   H     0    0   104      1  F  H
# the low one overflows
800  L   H   H     0    0   104      2  0  H
1000 L   L   H     0    0   104      2  0  H
1200 L   H   H     0    0   104      2  1  H
# both overflow: the carry is low while the clock is
1400 L   L   L     F    E   104      F  E  H
1600 L   L   H     0    0   104      F  E  H
1800 L   H   H     0    0   104      F  F  H
2000 L   L   H     0    0   104      F  F  L
2200 L   H   H     0    0   104      0  0  H
2400 L   L   H     0    0   104      0  0  H
# and back
2600 H   L   L     0    1   104      0  1  H
2800 H   L   H     0    0   104      0  1  H
3000 H   H   H     0    0   104      0  0  H
3200 H   L   H     0    0   104      0  0  L
3400 H   H   H     0    0   104      F  F  H
3600 H   L   H     0    0   104      F  F  H
3800 H   H   H     0    0   104      F  E  H
