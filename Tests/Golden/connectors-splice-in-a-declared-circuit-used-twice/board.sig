# Each copy has nets of its own.
time a  b  => once twice other
0    01 C5    80   01    A3
10   35 C5    AC   35    A3
20   35 7E    AC   35    7E
30   0E 20    70   0E    04
