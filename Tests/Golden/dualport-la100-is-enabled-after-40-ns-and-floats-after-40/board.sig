time A   _OE _CE => qL       qR
# Both enables high: the outputs float after 40 ns.
0    003 H   H      UUUUUUUU UUUUUUUU
39   003 H   H      UUUUUUUU UUUUUUUU
40   003 H   H      ZZZZZZZZ ZZZZZZZZ
# _CE alone enables nothing.
300  003 H   L      ZZZZZZZZ ZZZZZZZZ
400  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE: undefined after 5 ns, the word after 40 ns.
599  003 H   L      ZZZZZZZZ ZZZZZZZZ
600  003 L   L      ZZZZZZZZ ZZZZZZZZ
604  003 L   L      ZZZZZZZZ ZZZZZZZZ
605  003 L   L      UUUUUUUU UUUUUUUU
639  003 L   L      UUUUUUUU UUUUUUUU
640  003 L   L      43       43
# And floating 40 ns after it rises.
900  003 H   L      43       43
939  003 H   L      43       43
940  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE alone enables nothing either.
1200 003 H   H      ZZZZZZZZ ZZZZZZZZ
1300 003 L   H      ZZZZZZZZ ZZZZZZZZ
1400 004 L   H      ZZZZZZZZ ZZZZZZZZ
# _CE: undefined after 5 ns, the word after 100 ns.
1699 004 L   H      ZZZZZZZZ ZZZZZZZZ
1700 004 L   L      ZZZZZZZZ ZZZZZZZZ
1704 004 L   L      ZZZZZZZZ ZZZZZZZZ
1705 004 L   L      UUUUUUUU UUUUUUUU
1799 004 L   L      UUUUUUUU UUUUUUUU
1800 004 L   L      44       44
# And floating 40 ns after it rises.
2100 004 L   H      44       44
2139 004 L   H      44       44
2140 004 L   H      ZZZZZZZZ ZZZZZZZZ
