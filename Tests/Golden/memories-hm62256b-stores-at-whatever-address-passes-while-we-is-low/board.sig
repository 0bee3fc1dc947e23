# old.bin holds E0 to E8.
time A Din _WE _OE _CS => Dout
# one byte at each address that passes, but not where _WE rises
100  1 AA  L   H   L      UUUUUUUU
110  2 AA  L   H   L      UUUUUUUU
120  3 AA  L   H   L      ZZZZZZZZ
130  4 AA  H   H   L      ZZZZZZZZ
200  0 AA  H   L   L      ZZZZZZZZ
220  0 AA  H   L   L      E0
240  1 AA  H   L   L      E0
260  1 AA  H   L   L      AA
280  2 AA  H   L   L      AA
300  3 00  H   L   L      AA
320  4 00  H   L   L      AA
340  4 00  H   L   L      E4
# the address changes with the fall of _WE: the one before is left alone
400  6 BB  L   H   L      E4
# address and data change together
410  7 CC  L   H   L      E4
420  7 DD  H   H   L      ZZZZZZZZ
500  4 DD  H   L   L      ZZZZZZZZ
520  4 DD  H   L   L      E4
540  5 DD  H   L   L      E4
560  6 DD  H   L   L      E5
580  7 DD  H   L   L      BB
600  8 DD  H   L   L      CC
620  8 DD  H   L   L      E8
640  1 DD  H   L   L      E8
660  3 DD  H   L   L      AA
680  3 DD  H   L   L      AA
# back to an address that was passed before, with other data
700  1 11  L   H   L      AA
705  2 11  L   H   L      AA
710  1 22  L   H   L      AA
715  1 22  H   H   L      AA
800  1 22  H   L   L      ZZZZZZZZ
820  2 22  H   L   L      22
840  2 22  H   L   L      11
