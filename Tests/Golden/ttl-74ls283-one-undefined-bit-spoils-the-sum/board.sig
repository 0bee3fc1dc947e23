time A    B    cin ==(dT)=> C    cout
# one bit at a time, U and floating
0    ULLL 0    L   24       UUUU U
100  F    UHHH H   24       UUUU U
200  LULL 0    L   24       UUUU U
300  F    HUHH H   24       UUUU U
400  LLUL 0    L   24       UUUU U
500  F    HHUH H   24       UUUU U
600  LLLU 0    L   24       UUUU U
700  F    HHHU H   24       UUUU U
800  3    ZHLH L   24       UUUU U
900  ZHHH 1    H   24       UUUU U
1000 3    5    L   24       HLLL L
1100 3    LZLH L   24       UUUU U
1200 HZHH 1    H   24       UUUU U
1300 3    5    L   24       HLLL L
1400 3    LHZH L   24       UUUU U
1500 HHZH 1    H   24       UUUU U
1600 3    5    L   24       HLLL L
1700 3    LHLZ L   24       UUUU U
1800 HHHZ 1    H   24       UUUU U
1900 3    5    L   24       HLLL L
# the carry in, however little it matters
2000 0    0    U   24       UUUU U
2100 0    0    Z   24       UUUU U
2200 F    F    U   24       UUUU U
2300 5    6    H   24       HHLL L
2400 5    6    Z   24       UUUU U
# and back
2500 5    6    L   24       HLHH L
2600 UUUU ZZZZ Z   24       UUUU U
2700 F    1    L   24       LLLL H
2800 ZZZZ UUUU U   24       UUUU U
2900 F    0    H   24       LLLL H
