# words.bin holds 11 22 33 44.
rom(delay=45)
time A => rom.D    other.D
0    1    UUUUUUUU UUUUUUUU
20   1    UUUUUUUU UUUUUUUU
21   1    UUUUUUUU 22
45   1    UUUUUUUU 22
46   1    22       22
100  2    22       22
120  2    22       22
121  2    22       33
145  2    22       33
146  2    33       33
