time x => hi y
0    A5   A  UUUUUUUU
