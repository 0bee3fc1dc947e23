time a b _ga _gb ==(dT)=> left right
0    5 C L   H   10       5    5
20   A C L   H   10       A    A
40   A C H   L   10       C    C
60   A C L   L   10       UUUU UUUU
80   A C H   H   10       ZZZZ ZZZZ
