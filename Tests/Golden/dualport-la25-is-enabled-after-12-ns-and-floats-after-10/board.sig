time A   _OE _CE => qL       qR
# Both enables high: the outputs float after 10 ns.
0    003 H   H      UUUUUUUU UUUUUUUU
9    003 H   H      UUUUUUUU UUUUUUUU
10   003 H   H      ZZZZZZZZ ZZZZZZZZ
# _CE alone enables nothing.
300  003 H   L      ZZZZZZZZ ZZZZZZZZ
325  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE: undefined after 0 ns, the word after 12 ns.
599  003 H   L      ZZZZZZZZ ZZZZZZZZ
600  003 L   L      UUUUUUUU UUUUUUUU
611  003 L   L      UUUUUUUU UUUUUUUU
612  003 L   L      43       43
# And floating 10 ns after it rises.
900  003 H   L      43       43
909  003 H   L      43       43
910  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE alone enables nothing either.
1200 003 H   H      ZZZZZZZZ ZZZZZZZZ
1300 003 L   H      ZZZZZZZZ ZZZZZZZZ
1325 004 L   H      ZZZZZZZZ ZZZZZZZZ
# _CE: undefined after 0 ns, the word after 25 ns.
1699 004 L   H      ZZZZZZZZ ZZZZZZZZ
1700 004 L   L      UUUUUUUU UUUUUUUU
1724 004 L   L      UUUUUUUU UUUUUUUU
1725 004 L   L      44       44
# And floating 10 ns after it rises.
2100 004 L   H      44       44
2109 004 L   H      44       44
2110 004 L   H      ZZZZZZZZ ZZZZZZZZ
