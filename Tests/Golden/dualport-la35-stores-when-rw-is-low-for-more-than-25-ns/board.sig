time A   D  _G RW _OE _CE => qL       qR
# RW low for 25 ns stores nothing.
0    005 A5 H  H  H   L      UUUUUUUU UUUUUUUU
15   005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
200  005 A5 L  L  H   L      A5       A5
225  005 A5 L  H  H   L      A5       A5
230  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
500  005 A5 H  H  L   L      UUUUUUUU UUUUUUUU
520  005 A5 H  H  L   L      45       45
600  005 A5 H  H  H   L      45       45
615  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# RW low for 26 ns stores.
800  005 A5 L  L  H   L      A5       A5
826  005 A5 L  H  H   L      A5       A5
831  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
1100 005 A5 H  H  L   L      UUUUUUUU UUUUUUUU
1120 005 A5 H  H  L   L      A5       A5
1200 005 A5 H  H  H   L      A5       A5
1215 005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
