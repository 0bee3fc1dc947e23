time a => q    some
0    5    UUUU 5
10   A    UUUU A
