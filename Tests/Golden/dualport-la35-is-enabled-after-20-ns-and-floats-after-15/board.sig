time A   _OE _CE => qL       qR
# Both enables high: the outputs float after 15 ns.
0    003 H   H      UUUUUUUU UUUUUUUU
14   003 H   H      UUUUUUUU UUUUUUUU
15   003 H   H      ZZZZZZZZ ZZZZZZZZ
# _CE alone enables nothing.
300  003 H   L      ZZZZZZZZ ZZZZZZZZ
335  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE: undefined after 0 ns, the word after 20 ns.
599  003 H   L      ZZZZZZZZ ZZZZZZZZ
600  003 L   L      UUUUUUUU UUUUUUUU
619  003 L   L      UUUUUUUU UUUUUUUU
620  003 L   L      43       43
# And floating 15 ns after it rises.
900  003 H   L      43       43
914  003 H   L      43       43
915  003 H   L      ZZZZZZZZ ZZZZZZZZ
# _OE alone enables nothing either.
1200 003 H   H      ZZZZZZZZ ZZZZZZZZ
1300 003 L   H      ZZZZZZZZ ZZZZZZZZ
1335 004 L   H      ZZZZZZZZ ZZZZZZZZ
# _CE: undefined after 0 ns, the word after 35 ns.
1699 004 L   H      ZZZZZZZZ ZZZZZZZZ
1700 004 L   L      UUUUUUUU UUUUUUUU
1734 004 L   L      UUUUUUUU UUUUUUUU
1735 004 L   L      44       44
# And floating 15 ns after it rises.
2100 004 L   H      44       44
2114 004 L   H      44       44
2115 004 L   H      ZZZZZZZZ ZZZZZZZZ
