time A B cin ==(dT)=> C    cout
0    0 0 L   24       LLLL L
100  0 0 H   24       LLLH L
# each bit of A and of B alone
200  1 0 L   24       LLLH L
300  2 0 L   24       LLHL L
400  4 0 L   24       LHLL L
500  8 0 L   24       HLLL L
600  0 1 L   24       LLLH L
700  0 2 L   24       LLHL L
800  0 4 L   24       LHLL L
900  0 8 L   24       HLLL L
# a carry born in each bit
1000 1 1 L   24       LLHL L
1100 2 2 L   24       LHLL L
1200 4 4 L   24       HLLL L
1300 8 8 L   24       LLLL H
# passed on from there to the end
1400 F 1 L   24       LLLL H
1500 E 2 L   24       LLLL H
1600 C 4 L   24       LLLL H
1700 1 F L   24       LLLL H
1800 2 E L   24       LLLL H
# the carry in goes through all
1900 F 0 H   24       LLLL H
2000 0 F H   24       LLLL H
2100 A 5 H   24       LLLL H
2200 5 A H   24       LLLL H
# and not without it
2300 F 0 L   24       HHHH L
2400 0 F L   24       HHHH L
2500 A 5 L   24       HHHH L
2600 5 A L   24       HHHH L
# stopped on the way
2700 7 1 L   24       HLLL L
2800 3 1 L   24       LHLL L
2900 1 1 H   24       LLHH L
3000 6 2 L   24       HLLL L
3100 B 1 H   24       HHLH L
# the highest
3200 F F L   24       HHHL H
3300 F F H   24       HHHH H
# 15 and 16
3400 7 8 L   24       HHHH L
3500 7 8 H   24       LLLL H
3600 8 7 H   24       LLLL H
# others
3700 9 6 H   24       LLLL H
3800 3 D L   24       LLLL H
3900 C 9 H   24       LHHL H
4000 6 5 L   24       HLHH L
4100 A A L   24       LHLL H
4200 5 5 H   24       HLHH L
