time A   _OE _CE => qL       qR
# Both enables high: the outputs float after 25 ns.
0    003 H   H      UUUUUUUU UUUUUUUU
24   003 H   H      UUUUUUUU UUUUUUUU
25   003 H   H      ZZZZZZZZ ZZZZZZZZ
# _CE alone enables nothing.
300  003 H   L      ZZZZZZZZ ZZZZZZZZ
355  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE: undefined after 5 ns, the word after 25 ns.
599  003 H   L      ZZZZZZZZ ZZZZZZZZ
600  003 L   L      ZZZZZZZZ ZZZZZZZZ
604  003 L   L      ZZZZZZZZ ZZZZZZZZ
605  003 L   L      UUUUUUUU UUUUUUUU
624  003 L   L      UUUUUUUU UUUUUUUU
625  003 L   L      43       43
# And floating 25 ns after it rises.
900  003 H   L      43       43
924  003 H   L      43       43
925  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE alone enables nothing either.
1200 003 H   H      ZZZZZZZZ ZZZZZZZZ
1300 003 L   H      ZZZZZZZZ ZZZZZZZZ
1355 004 L   H      ZZZZZZZZ ZZZZZZZZ
# _CE: undefined after 5 ns, the word after 55 ns.
1699 004 L   H      ZZZZZZZZ ZZZZZZZZ
1700 004 L   L      ZZZZZZZZ ZZZZZZZZ
1704 004 L   L      ZZZZZZZZ ZZZZZZZZ
1705 004 L   L      UUUUUUUU UUUUUUUU
1754 004 L   L      UUUUUUUU UUUUUUUU
1755 004 L   L      44       44
# And floating 25 ns after it rises.
2100 004 L   H      44       44
2124 004 L   H      44       44
2125 004 L   H      ZZZZZZZZ ZZZZZZZZ
