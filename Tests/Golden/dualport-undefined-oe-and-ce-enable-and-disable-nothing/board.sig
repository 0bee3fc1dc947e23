time A   _OE _CE => qL       qR
# _OE that gets undefined changes nothing; a fall from there enables anew, a rise disables.
0    003 L   L      UUUUUUUU UUUUUUUU
20   003 L   L      43       43
100  003 U   L      43       43
140  003 U   L      43       43
200  003 L   L      UUUUUUUU UUUUUUUU
210  003 L   L      UUUUUUUU UUUUUUUU
211  003 L   L      43       43
300  003 Z   L      43       43
340  003 Z   L      43       43
400  003 H   L      43       43
409  003 H   L      43       43
410  003 H   L      ZZZZZZZZ ZZZZZZZZ
# Undefined instead of low it never enables.
500  003 X   L      ZZZZZZZZ ZZZZZZZZ
540  003 X   L      ZZZZZZZZ ZZZZZZZZ
600  003 H   L      ZZZZZZZZ ZZZZZZZZ
640  003 H   L      ZZZZZZZZ ZZZZZZZZ
700  003 U   L      ZZZZZZZZ ZZZZZZZZ
740  003 U   H      ZZZZZZZZ ZZZZZZZZ
780  003 U   L      ZZZZZZZZ ZZZZZZZZ
820  003 U   L      ZZZZZZZZ ZZZZZZZZ
840  003 L   L      UUUUUUUU UUUUUUUU
851  003 L   L      43       43
# _CE that gets undefined: the word stays, but no other one is read, and back at low it begins anew.
900  003 L   U      43       43
940  003 L   U      43       43
1000 004 L   U      43       43
1003 004 L   U      UUUUUUUU UUUUUUUU
1020 004 L   U      UUUUUUUU UUUUUUUU
1060 004 L   U      UUUUUUUU UUUUUUUU
1100 004 L   L      UUUUUUUU UUUUUUUU
1119 004 L   L      UUUUUUUU UUUUUUUU
1120 004 L   L      44       44
1200 004 L   Z      44       44
1240 004 L   Z      44       44
1300 004 L   H      44       44
1309 004 L   H      44       44
1310 004 L   H      ZZZZZZZZ ZZZZZZZZ
1400 004 L   X      ZZZZZZZZ ZZZZZZZZ
1440 004 L   X      ZZZZZZZZ ZZZZZZZZ
1500 004 L   L      UUUUUUUU UUUUUUUU
1519 004 L   L      UUUUUUUU UUUUUUUU
1520 004 L   L      44       44
