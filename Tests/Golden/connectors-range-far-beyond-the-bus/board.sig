time a => q
0 0 UUUUUUUU
