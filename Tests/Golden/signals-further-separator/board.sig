time a => q => p
0 1 1 H
