# two.bin holds 5A C3, here at 4 and 5.
time A    _OE _CS => empty.D  rom.D
0    0    L   L      UUUUUUUU UUUUUUUU
10   5    L   L      UUUUUUUU C3
20   5    L   H      ZZZZZZZZ ZZZZZZZZ
30   6    L   L      UUUUUUUU UUUUUUUU
40   6    H   L      ZZZZZZZZ ZZZZZZZZ
50   1FFF L   L      UUUUUUUU UUUUUUUU
60   1FFF H   H      ZZZZZZZZ ZZZZZZZZ
70   4    L   L      UUUUUUUU 5A
