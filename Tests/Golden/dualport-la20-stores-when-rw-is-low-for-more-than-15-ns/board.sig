time A   D  _G RW _OE _CE => qL       qR
# RW low for 15 ns stores nothing.
0    005 A5 H  H  H   L      UUUUUUUU UUUUUUUU
10   005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
200  005 A5 L  L  H   L      A5       A5
215  005 A5 L  H  H   L      A5       A5
220  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
500  005 A5 H  H  L   L      UUUUUUUU UUUUUUUU
511  005 A5 H  H  L   L      45       45
600  005 A5 H  H  H   L      45       45
610  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# RW low for 16 ns stores.
800  005 A5 L  L  H   L      A5       A5
816  005 A5 L  H  H   L      A5       A5
821  005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
1100 005 A5 H  H  L   L      UUUUUUUU UUUUUUUU
1111 005 A5 H  H  L   L      A5       A5
1200 005 A5 H  H  H   L      A5       A5
1210 005 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
