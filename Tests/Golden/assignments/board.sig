# Set at 0 behind all vectors, so the column's value at 0 is overwritten, its later ones aren't.
time a => q busq
0  0 U ULLH
3  1 H ULLH
6  1 H ULLH
10 0 H ULLH
13 0 L ULLH
enable=H
bus = ULLH
a = H
