# The stimuli have scheduled rom at each edge before the option holds; it then looks 7 ns back.
# words.bin holds 11 22 33 44.
rom(delay=7)
time A => D
0    1    UUUUUUUU
10   2    22
20   3    33
24   0    33
27   0    33
30   3    44
40   3    44
