
0 H
time a
