time a => q
100 H => L
