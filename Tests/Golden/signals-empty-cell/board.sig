time a => q
0 ~ U
3 ~ H
