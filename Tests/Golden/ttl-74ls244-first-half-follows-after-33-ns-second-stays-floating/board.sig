time 1_G 1A 2_G 2A => u.1Y u.2Y
0    L   5  H   3     UUUU UUUU
32   L   5  H   3     UUUU UUUU
33   L   5  H   3     LHLH ZZZZ
100  L   A  H   C     LHLH ZZZZ
132  L   A  H   C     LHLH ZZZZ
133  L   A  H   C     HLHL ZZZZ
200  L   F  H   F     HLHL ZZZZ
232  L   F  H   F     HLHL ZZZZ
233  L   F  H   F     HHHH ZZZZ
