time a => q
8 0 X
