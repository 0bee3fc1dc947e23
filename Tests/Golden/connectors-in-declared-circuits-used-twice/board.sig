time a  b  => sa sb mirrored reversed
0    12 C5    21 5C 84       48
10   80 C5    08 5C 10       01
20   80 7E    08 E7 10       01
30   A1 01    1A 10 58       85
