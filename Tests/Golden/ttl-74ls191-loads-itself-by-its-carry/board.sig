time clock _start N => Q    _carry
# loaded by hand
0    L     L      3    UUUU U
54   L     L      3    UUUU U
55   L     L      3    3    H
200  L     H      3    3    H
400  H     H      3    3    H
452  H     H      3    2    H
600  L     H      3    2    H
800  H     H      3    2    H
852  H     H      3    1    H
1000 L     H      3    1    H
1200 H     H      3    1    H
1252 H     H      3    0    H
# the low clock lets the carry out, which loads through the gate, which takes the carry back
1400 L     H      3    0    H
1451 L     H      3    0    H
1452 L     H      3    0    L
1506 L     H      3    0    L
1507 L     H      3    3    H
1600 H     H      3    3    H
1652 H     H      3    2    H
1800 L     H      3    2    H
2000 H     H      3    2    H
2052 H     H      3    1    H
2200 L     H      3    1    H
# the next round divides by two
2300 L     H      2    1    H
2400 H     H      2    1    H
2452 H     H      2    0    H
2600 L     H      2    0    H
2652 L     H      2    0    L
2707 L     H      2    2    H
2800 H     H      2    2    H
2852 H     H      2    1    H
3000 L     H      2    1    H
3200 H     H      2    1    H
3252 H     H      2    0    H
3400 L     H      2    0    H
3507 L     H      2    2    H
