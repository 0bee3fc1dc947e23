# words.bin holds 11 22 33 44.
time A Din _WE _OE _CS => now      slow     slower
0    1 99  H   L   L      22       UUUUUUUU UUUUUUUU
69   1 99  H   L   L      22       UUUUUUUU UUUUUUUU
70   1 99  H   L   L      22       22       UUUUUUUU
99   1 99  H   L   L      22       22       UUUUUUUU
100  1 99  H   L   L      22       22       22
# from the address
200  2 99  H   L   L      33       22       22
269  2 99  H   L   L      33       22       22
270  2 99  H   L   L      33       33       22
299  2 99  H   L   L      33       33       22
300  2 99  H   L   L      33       33       33
# from _OE
400  2 99  H   H   L      ZZZZZZZZ 33       33
469  2 99  H   H   L      ZZZZZZZZ 33       33
470  2 99  H   H   L      ZZZZZZZZ ZZZZZZZZ 33
499  2 99  H   H   L      ZZZZZZZZ ZZZZZZZZ 33
500  2 99  H   H   L      ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
600  2 99  H   L   L      33       ZZZZZZZZ ZZZZZZZZ
669  2 99  H   L   L      33       ZZZZZZZZ ZZZZZZZZ
670  2 99  H   L   L      33       33       ZZZZZZZZ
699  2 99  H   L   L      33       33       ZZZZZZZZ
700  2 99  H   L   L      33       33       33
# from _CS
800  2 99  H   L   H      ZZZZZZZZ 33       33
869  2 99  H   L   H      ZZZZZZZZ 33       33
870  2 99  H   L   H      ZZZZZZZZ ZZZZZZZZ 33
899  2 99  H   L   H      ZZZZZZZZ ZZZZZZZZ 33
900  2 99  H   L   H      ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
1000 2 99  H   L   L      33       ZZZZZZZZ ZZZZZZZZ
1069 2 99  H   L   L      33       ZZZZZZZZ ZZZZZZZZ
1070 2 99  H   L   L      33       33       ZZZZZZZZ
1099 2 99  H   L   L      33       33       ZZZZZZZZ
1100 2 99  H   L   L      33       33       33
# from _WE, down and up: what was written is there
1200 2 99  L   L   L      ZZZZZZZZ 33       33
1269 2 99  L   L   L      ZZZZZZZZ 33       33
1270 2 99  L   L   L      ZZZZZZZZ ZZZZZZZZ 33
1299 2 99  L   L   L      ZZZZZZZZ ZZZZZZZZ 33
1300 2 99  L   L   L      ZZZZZZZZ ZZZZZZZZ ZZZZZZZZ
1400 2 99  H   L   L      99       ZZZZZZZZ ZZZZZZZZ
1469 2 99  H   L   L      99       ZZZZZZZZ ZZZZZZZZ
1470 2 99  H   L   L      99       99       ZZZZZZZZ
1499 2 99  H   L   L      99       99       ZZZZZZZZ
1500 2 99  H   L   L      99       99       99
# from an undefined _WE
1600 2 99  U   L   L      UUUUUUUU 99       99
1669 2 99  U   L   L      UUUUUUUU 99       99
1670 2 99  U   L   L      UUUUUUUU UUUUUUUU 99
1699 2 99  U   L   L      UUUUUUUU UUUUUUUU 99
1700 2 99  U   L   L      UUUUUUUU UUUUUUUU UUUUUUUU
