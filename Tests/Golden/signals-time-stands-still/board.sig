time a => q
5 0 X
10 0 X
10 1 X
