time A Din _WE _OE _CS => Dout
# _CS opens and closes the write, _WE stays low
0    1 11  L   L   H      ZZZZZZZZ
10   1 11  L   L   L      ZZZZZZZZ
20   1 12  L   L   H      ZZZZZZZZ
30   2 12  L   L   H      ZZZZZZZZ
40   2 22  L   H   L      ZZZZZZZZ
50   2 23  L   H   H      ZZZZZZZZ
60   1 23  H   L   L      11
70   2 23  H   L   L      22
# both at once
80   3 33  L   L   L      ZZZZZZZZ
90   3 34  H   L   H      ZZZZZZZZ
100  3 34  H   L   L      33
# _WE is low only while _CS is high
110  4 44  H   L   H      ZZZZZZZZ
120  4 44  L   L   H      ZZZZZZZZ
130  4 45  H   L   L      UUUUUUUU
# _CS through undefined
140  5 55  L   L   U      UUUUUUUU
150  5 56  L   L   L      ZZZZZZZZ
160  5 57  L   L   U      UUUUUUUU
170  5 57  H   L   L      56
# _WE through undefined
180  6 66  U   L   L      UUUUUUUU
190  6 67  L   L   L      ZZZZZZZZ
200  6 68  U   L   L      UUUUUUUU
210  6 68  H   L   L      67
