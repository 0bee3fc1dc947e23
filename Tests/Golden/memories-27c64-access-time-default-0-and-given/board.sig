# words.bin holds 11 22 33 44.
time A             _OE _CS => now      slow     slower
0    1             L   L      22       UUUUUUUU UUUUUUUU
89   1             L   L      22       UUUUUUUU UUUUUUUU
90   1             L   L      22       22       UUUUUUUU
99   1             L   L      22       22       UUUUUUUU
100  1             L   L      22       22       22
# from the address
200  2             L   L      33       22       22
289  2             L   L      33       22       22
290  2             L   L      33       33       22
299  2             L   L      33       33       22
300  2             L   L      33       33       33
# from _OE
400  2             H   L      ZZZZZZZZ 33       33
489  2             H   L      ZZZZZZZZ 33       33
490  2             H   L      ZZZZZZZZ ZZZZZZZZ 33
499  2             H   L      ZZZZZZZZ ZZZZZZZZ 33
500  2             H   L      ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
600  2             L   L      33       ZZZZZZZZ ZZZZZZZZ
689  2             L   L      33       ZZZZZZZZ ZZZZZZZZ
690  2             L   L      33       33       ZZZZZZZZ
699  2             L   L      33       33       ZZZZZZZZ
700  2             L   L      33       33       33
# from _CS
800  2             L   H      ZZZZZZZZ 33       33
889  2             L   H      ZZZZZZZZ 33       33
890  2             L   H      ZZZZZZZZ ZZZZZZZZ 33
899  2             L   H      ZZZZZZZZ ZZZZZZZZ 33
900  2             L   H      ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
1000 2             L   L      33       ZZZZZZZZ ZZZZZZZZ
1089 2             L   L      33       ZZZZZZZZ ZZZZZZZZ
1090 2             L   L      33       33       ZZZZZZZZ
1099 2             L   L      33       33       ZZZZZZZZ
1100 2             L   L      33       33       33
# an address that is lost, and one found again
1200 LLLLLLLLLLLHU L   L      UUUUUUUU 33       33
1289 LLLLLLLLLLLHU L   L      UUUUUUUU 33       33
1290 LLLLLLLLLLLHU L   L      UUUUUUUU UUUUUUUU 33
1299 LLLLLLLLLLLHU L   L      UUUUUUUU UUUUUUUU 33
1300 LLLLLLLLLLLHU L   L      UUUUUUUU UUUUUUUU UUUUUUUU
1400 3             L   L      44       UUUUUUUU UUUUUUUU
1489 3             L   L      44       UUUUUUUU UUUUUUUU
1490 3             L   L      44       44       UUUUUUUU
1499 3             L   L      44       44       UUUUUUUU
1500 3             L   L      44       44       44
