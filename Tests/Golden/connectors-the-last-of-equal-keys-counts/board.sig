time a => q
0    5    UUUULHLH
10   A    UUUUHLHL
