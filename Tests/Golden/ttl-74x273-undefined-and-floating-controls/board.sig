time _CLR clk D        ==(dT)=> Q
# nothing is stored yet
0    H    L   A5       27       UUUUUUUU
100  H    H   A5       27       A5
# clear: nothing to be seen, but the bits stay and are still clocked
200  U    H   A5       27       UUUUUUUU
300  H    H   A5       27       A5
400  U    L   3C       27       UUUUUUUU
500  U    H   3C       27       UUUUUUUU
600  H    H   3C       27       3C
700  Z    H   3C       27       UUUUUUUU
800  H    H   3C       27       3C
# the clock: an undefined level stores nothing and spoils nothing
900  H    U   F0       27       3C
1000 H    H   F0       27       3C
1100 H    L   F0       27       3C
1200 H    H   F0       27       F0
1300 H    Z   0F       27       F0
1400 H    H   0F       27       F0
1500 H    L   0F       27       F0
1600 H    Z   0F       27       F0
1700 H    L   0F       27       F0
1800 H    X   0F       27       F0
1900 H    L   0F       27       F0
2000 H    H   0F       27       0F
# data, bit by bit
2100 H    L   HLUZHLUZ 27       0F
2200 H    H   HLUZHLUZ 27       HLUUHLUU
2300 H    L   00       27       HLUUHLUU
2400 L    L   00       27       00
# while cleared
2500 L    U   FF       27       00
2600 L    Z   FF       27       00
2700 H    Z   FF       27       00
2800 H    L   FF       27       00
2900 H    H   FF       27       FF
