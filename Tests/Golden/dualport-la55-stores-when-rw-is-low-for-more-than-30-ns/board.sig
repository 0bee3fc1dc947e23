time A   D  _G RW _OE _CE => qL       qR
# RW low for 30 ns stores nothing.
0    005 A5 H  H  H   L      UUUUUUUU UUUUUUUU
25   005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
200  005 A5 L  L  H   L      A5       A5
230  005 A5 L  H  H   L      A5       A5
235  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
500  005 A5 H  H  L   L      ZZZZZZZZ ZZZZZZZZ
525  005 A5 H  H  L   L      45       45
600  005 A5 H  H  H   L      45       45
625  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# RW low for 31 ns stores.
800  005 A5 L  L  H   L      A5       A5
831  005 A5 L  H  H   L      A5       A5
836  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
1100 005 A5 H  H  L   L      ZZZZZZZZ ZZZZZZZZ
1125 005 A5 H  H  L   L      A5       A5
1200 005 A5 H  H  H   L      A5       A5
1225 005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
