# old.bin holds E0 E1 E2 E3.
time A               Din _WE _OE _CS => Dout
# a good write, then the lowest address line is lost, the data changes, and it comes back
100  1               11  L   H   L      UUUUUUUU
140  LLLLLLLLLLLLLLU 11  L   H   L      ZZZZZZZZ
150  LLLLLLLLLLLLLLU 22  L   H   L      ZZZZZZZZ
180  2               22  L   H   L      ZZZZZZZZ
220  2               22  H   H   L      ZZZZZZZZ
# only 1 and 2 were written
240  0               22  H   L   L      ZZZZZZZZ
260  1               22  H   L   L      E0
280  2               22  H   L   L      11
300  3               22  H   L   L      22
320  3               22  H   L   L      E3
# with _OE low, undefined and floating
400  HLLLLLLLLLLLLLU 33  L   L   L      E3
420  HLLLLLLLLLLLLLU 33  L   U   L      ZZZZZZZZ
440  HLLLLLLLLLLLLLU 33  L   Z   L      UUUUUUUU
460  ZZZZZZZZZZZZZZZ 33  L   L   L      UUUUUUUU
480  ZZZZZZZZZZZZZZZ 33  H   L   L      ZZZZZZZZ
# no word while _CS or _WE keep it from writing
500  UUUUUUUUUUUUUUU 44  H   L   L      UUUUUUUU
520  UUUUUUUUUUUUUUU 44  L   L   H      UUUUUUUU
540  UUUUUUUUUUUUUUU 44  L   L   U      ZZZZZZZZ
560  UUUUUUUUUUUUUUU 44  U   L   L      UUUUUUUU
580  UUUUUUUUUUUUUUU 44  H   L   L      UUUUUUUU
# a write of 1 ns
600  LLLLLLLLLLLLLUL 55  L   L   L      UUUUUUUU
601  0               55  H   L   L      UUUUUUUU
620  0               55  H   L   L      ZZZZZZZZ
621  0               55  H   L   L      E0
640  2               55  H   L   L      E0
660  2               55  H   L   L      22
