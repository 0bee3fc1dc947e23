time A => D
0    0    UUUUUUUU
