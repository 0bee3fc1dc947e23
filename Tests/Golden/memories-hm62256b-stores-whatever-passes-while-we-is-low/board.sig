# e5.bin holds E5, here at 5.
time A Din _WE _OE _CS => Dout
0    5 01  H   L   L      UUUUUUUU
19   5 01  H   L   L      UUUUUUUU
20   5 01  H   L   L      E5
# three bytes pass while _WE is low: stored at 120, 130 and 140
100  5 01  L   L   L      E5
110  5 02  L   L   L      E5
119  5 02  L   L   L      E5
120  5 03  L   L   L      ZZZZZZZZ
125  5 03  H   L   L      ZZZZZZZZ
# each read shows the cell as it was 20 ns ago; the edges of the data only make it look again
135  5 04  H   L   L      ZZZZZZZZ
139  5 05  H   L   L      ZZZZZZZZ
140  5 06  H   L   L      ZZZZZZZZ
144  5 06  H   L   L      ZZZZZZZZ
145  5 06  H   L   L      01
154  5 06  H   L   L      01
155  5 06  H   L   L      02
159  5 06  H   L   L      02
160  5 06  H   L   L      03
# the last one stays
200  5 07  H   L   L      03
220  5 07  H   L   L      03
# data that changes with the fall of _WE is stored, data that changes with its rise is not
300  5 0A  L   H   L      03
310  5 0B  H   H   L      03
320  5 0B  H   H   L      ZZZZZZZZ
350  5 0B  H   L   L      ZZZZZZZZ
369  5 0B  H   L   L      ZZZZZZZZ
370  5 0B  H   L   L      0A
# there and back, a nanosecond each
400  5 0C  L   L   L      0A
401  5 0D  L   L   L      0A
402  5 0C  L   L   L      0A
403  5 0C  H   L   L      0A
420  5 0C  H   L   L      ZZZZZZZZ
421  5 0E  H   L   L      ZZZZZZZZ
422  5 0E  H   L   L      ZZZZZZZZ
423  5 0E  H   L   L      0A
430  5 00  H   L   L      0A
440  5 00  H   L   L      0A
441  5 00  H   L   L      0D
449  5 00  H   L   L      0D
450  5 00  H   L   L      0C
