time A   D  _G RW _OE _CE => qL       qR
# RW low for 55 ns stores nothing.
0    005 A5 H  H  H   L      UUUUUUUU UUUUUUUU
40   005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
200  005 A5 L  L  H   L      A5       A5
255  005 A5 L  H  H   L      A5       A5
260  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
500  005 A5 H  H  L   L      ZZZZZZZZ ZZZZZZZZ
540  005 A5 H  H  L   L      45       45
600  005 A5 H  H  H   L      45       45
640  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# RW low for 56 ns stores.
800  005 A5 L  L  H   L      A5       A5
856  005 A5 L  H  H   L      A5       A5
861  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
1100 005 A5 H  H  L   L      ZZZZZZZZ ZZZZZZZZ
1140 005 A5 H  H  L   L      A5       A5
1200 005 A5 H  H  H   L      A5       A5
1240 005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
