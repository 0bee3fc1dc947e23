# words.bin holds 11 22 33 44.
time A             _OE _CS => D
# three addresses within one access time: each comes out
0    0             L   L      UUUUUUUU
60   1             L   L      UUUUUUUU
70   2             L   L      UUUUUUUU
99   2             L   L      UUUUUUUU
100  2             L   L      11
159  2             L   L      11
160  2             L   L      22
169  2             L   L      22
170  2             L   L      33
# another address for 1 ns
300  3             L   L      33
301  2             L   L      33
399  2             L   L      33
400  2             L   L      44
401  2             L   L      33
# _OE high for 10 ns
500  2             H   L      33
510  2             L   L      33
599  2             L   L      33
600  2             L   L      ZZZZZZZZ
609  2             L   L      ZZZZZZZZ
610  2             L   L      33
# _CS high for 1 ns
700  2             L   H      33
701  2             L   L      33
799  2             L   L      33
800  2             L   L      ZZZZZZZZ
801  2             L   L      33
# an undefined bit for 5 ns
900  LLLLLLLLLLLHU L   L      33
905  0             L   L      33
999  0             L   L      33
1000 0             L   L      UUUUUUUU
1004 0             L   L      UUUUUUUU
1005 0             L   L      11
# address and _OE change together
1100 3             H   L      11
1150 1             L   L      11
1199 1             L   L      11
1200 1             L   L      ZZZZZZZZ
1249 1             L   L      ZZZZZZZZ
1250 1             L   L      22
