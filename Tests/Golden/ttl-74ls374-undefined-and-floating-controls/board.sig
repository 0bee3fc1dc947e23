time clk _OE D        ==(dT)=> Q
0    L   L   A5       28       UUUUUUUU
100  H   L   A5       28       A5
# output enable
200  H   U   A5       28       UUUUUUUU
300  H   L   A5       28       A5
400  H   Z   A5       28       UUUUUUUU
500  H   H   A5       28       UUUUUUUU
600  H   U   A5       28       UUUUUUUU
700  H   L   A5       28       A5
# the clock: an undefined level stores nothing and spoils nothing
800  U   L   3C       28       A5
900  H   L   3C       28       A5
1000 L   L   3C       28       A5
1100 Z   L   3C       28       A5
1200 H   L   3C       28       A5
1300 Z   L   3C       28       A5
1400 L   L   3C       28       A5
1500 X   L   3C       28       A5
1600 H   L   3C       28       A5
1700 L   L   3C       28       A5
1800 H   L   3C       28       3C
# clocked while the enable is undefined
1900 L   U   0F       28       UUUUUUUU
2000 H   U   0F       28       UUUUUUUU
2100 H   L   0F       28       0F
# data, bit by bit
2200 L   L   HLUZHLUZ 28       0F
2300 H   L   HLUZHLUZ 28       HLUUHLUU
2400 L   L   F0       28       HLUUHLUU
2500 H   L   F0       28       F0
