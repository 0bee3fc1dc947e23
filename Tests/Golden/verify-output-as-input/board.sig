time q => q
0 0 H
