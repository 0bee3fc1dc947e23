time _CLR clk D  ==(dT)=> Q
0    L    L   FF 27       00
100  H    L   FF 27       00
200  H    H   A5 27       A5
# neither the high level nor the flank to low stores
300  H    H   5A 27       A5
400  H    L   5A 27       A5
500  H    H   5A 27       5A
# clear waits for no clock, and forgets what is clocked meanwhile
600  L    H   5A 27       00
700  L    L   FF 27       00
800  L    H   FF 27       00
900  H    H   FF 27       00
1000 H    L   FF 27       00
1100 H    H   FF 27       FF
# a single one in each place
1200 H    L   01 27       FF
1300 H    H   01 27       01
1400 H    L   02 27       01
1500 H    H   02 27       02
1600 H    L   04 27       02
1700 H    H   04 27       04
1800 H    L   08 27       04
1900 H    H   08 27       08
2000 H    L   10 27       08
2100 H    H   10 27       10
2200 H    L   20 27       10
2300 H    H   20 27       20
2400 H    L   40 27       20
2500 H    H   40 27       40
2600 H    L   80 27       40
2700 H    H   80 27       80
