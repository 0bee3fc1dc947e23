time x => q
0    A5   LHLH
