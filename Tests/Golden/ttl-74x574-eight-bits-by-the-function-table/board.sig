time clk _OE D  ==(dT)=> Q
# nothing is stored yet
0    L   L   A5 28       UUUUUUUU
100  H   L   A5 28       A5
# neither the high level nor the flank to low stores
200  H   L   5A 28       A5
300  L   L   5A 28       A5
400  H   L   5A 28       5A
# disabled it still stores
500  H   H   5A 28       ZZZZZZZZ
600  L   H   3C 28       ZZZZZZZZ
700  H   H   3C 28       ZZZZZZZZ
800  H   L   3C 28       3C
900  L   H   C3 28       ZZZZZZZZ
# clocked and enabled at once
1000 H   L   C3 28       C3
# a single one in each place
1100 L   L   01 28       C3
1200 H   L   01 28       01
1300 L   L   02 28       01
1400 H   L   02 28       02
1500 L   L   04 28       02
1600 H   L   04 28       04
1700 L   L   08 28       04
1800 H   L   08 28       08
1900 L   L   10 28       08
2000 H   L   10 28       10
2100 L   L   20 28       10
2200 H   L   20 28       20
2300 L   L   40 28       20
2400 H   L   40 28       40
2500 L   L   80 28       40
2600 H   L   80 28       80
