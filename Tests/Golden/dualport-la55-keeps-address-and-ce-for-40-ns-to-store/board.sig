time A   D  _G RW _OE _CE => qL       qR
# The address must stand for 40 ns: it comes 10 ns before RW falls, and the word is stored.
0    000 B6 H  H  H   L      UUUUUUUU UUUUUUUU
25   000 B6 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
190  006 B6 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
200  006 B6 L  L  H   L      B6       B6
231  006 B6 L  H  H   L      B6       B6
236  006 B6 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# 1 ns later: nothing is stored, neither here nor at the address before.
391  007 B6 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
400  007 5E L  L  H   L      5E       5E
431  007 5E L  H  H   L      5E       5E
436  007 5E H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# So with _CE: in time at address 8, 1 ns too late at address 9.
520  008 5E H  H  H   H      ZZZZZZZZ ZZZZZZZZ
790  008 5E H  H  H   L      ZZZZZZZZ ZZZZZZZZ
800  008 B6 L  L  H   L      B6       B6
831  008 B6 L  H  H   H      B6       B6
836  008 B6 H  H  H   H      ZZZZZZZZ ZZZZZZZZ
950  009 B6 H  H  H   H      ZZZZZZZZ ZZZZZZZZ
1191 009 B6 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
1200 009 5E L  L  H   L      5E       5E
1231 009 5E L  H  H   H      5E       5E
1236 009 5E H  H  H   H      ZZZZZZZZ ZZZZZZZZ
# What the four words are now.
1500 006 5E H  H  L   L      ZZZZZZZZ ZZZZZZZZ
1555 006 5E H  H  L   L      B6       B6
1700 007 5E H  H  L   L      B6       B6
1755 007 5E H  H  L   L      47       47
1900 008 5E H  H  L   L      47       47
1955 008 5E H  H  L   L      B6       B6
2100 009 5E H  H  L   L      B6       B6
2155 009 5E H  H  L   L      49       49
