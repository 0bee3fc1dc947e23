# e7.bin holds E7, here at 7.
time W  _G _WE _OE => bus
# the polite way: _OE high before the buffer is on, and on until _WE is high
0    11 H  H   L      UUUUUUUU
5    11 H  H   L      UUUUUUUU
19   11 H  H   L      UUUUUUUU
20   11 H  H   L      E7
100  11 H  H   H      E7
119  11 H  H   H      E7
120  11 H  H   H      ZZZZZZZZ
200  11 L  L   H      ZZZZZZZZ
204  11 L  L   H      ZZZZZZZZ
205  11 L  L   H      11
300  11 L  H   H      11
310  11 H  H   H      11
314  11 H  H   H      11
315  11 H  H   H      ZZZZZZZZ
400  11 H  H   L      ZZZZZZZZ
419  11 H  H   L      ZZZZZZZZ
420  11 H  H   L      11
# buffer against memory until the memory lets go, and a write that lasts: the data of 520 is stored at 540
500  22 L  L   L      11
504  22 L  L   L      11
505  22 L  L   L      UUUUUUUU
519  22 L  L   L      UUUUUUUU
520  22 L  L   L      22
560  22 L  H   L      22
570  22 H  H   L      22
574  22 H  H   L      22
575  22 H  H   L      ZZZZZZZZ
579  22 H  H   L      ZZZZZZZZ
580  22 H  H   L      22
# a write as long as the delay ends with the clash of 705 stored, which the read at 755 is the first to see
700  33 L  L   L      22
704  33 L  L   L      22
705  33 L  L   L      UUUUUUUU
719  33 L  L   L      UUUUUUUU
720  33 L  H   L      33
730  33 H  H   L      33
734  33 H  H   L      33
735  33 H  H   L      ZZZZZZZZ
739  33 H  H   L      ZZZZZZZZ
740  33 H  H   L      22
754  33 H  H   L      22
755  33 H  H   L      UUUUUUUU
800  33 H  H   L      UUUUUUUU
# politely again
900  33 H  H   H      UUUUUUUU
920  33 H  H   H      ZZZZZZZZ
1000 33 L  L   H      ZZZZZZZZ
1005 33 L  L   H      33
1100 33 L  H   H      33
1110 33 H  H   H      33
1115 33 H  H   L      ZZZZZZZZ
1134 33 H  H   L      ZZZZZZZZ
1135 33 H  H   L      33
