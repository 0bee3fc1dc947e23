# words.bin holds 11 22 33 44.
time A Din _WE _OE _CS => Dout
# the first write at the very start
0    1 AA  L   L   L      ZZZZZZZZ
10   1 AB  H   L   L      AA
20   0 AB  H   L   L      11
30   2 BB  L   H   L      ZZZZZZZZ
40   2 BC  H   L   L      BB
50   3 BC  H   L   L      44
60   0 BC  H   L   L      11
70   1 BC  H   L   L      AA
80   4 BC  H   L   L      UUUUUUUU
