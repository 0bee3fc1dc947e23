time _ga a _gb b    _gc c _gd d    ==(dT)=> bus  read x_read
# nobody drives
0    H   5 H   A    H   C H   3    33       ZZZZ UUUU UUUU
# each in turn
100  L   5 H   A    H   C H   3    33       LHLH LHLH LHLH
200  L   9 H   6    H   1 H   7    33       HLLH HLLH HLLH
300  H   5 L   A    H   C H   3    33       HLHL HLHL HLHL
400  H   9 L   6    H   1 H   7    33       LHHL LHHL LHHL
500  H   5 H   A    L   C H   3    33       HHLL HHLL UUUU
600  H   9 H   6    L   1 H   7    33       LLLH LLLH UUUU
700  H   5 H   A    H   C L   3    33       LLHH LLHH UUUU
800  H   9 H   6    H   1 L   7    33       LHHH LHHH UUUU
# the bus is handed over and let go
900  L   5 H   A    H   C H   3    33       LHLH LHLH LHLH
1000 H   5 H   A    L   C H   3    33       HHLL HHLL UUUU
1100 H   5 H   A    H   C H   3    33       ZZZZ UUUU UUUU
# both halves of a card, and a half of each card: contention on every wire, even where they agree
1200 L   5 L   A    H   C H   3    33       UUUU UUUU UUUU
1300 L   5 L   5    H   C H   3    33       UUUU UUUU UUUU
1400 L   5 H   A    L   C H   3    33       UUUU UUUU LHLH
1500 H   6 L   6    H   6 L   6    33       UUUU UUUU LHHL
1600 L   5 L   A    L   C L   3    33       UUUU UUUU UUUU
# contention ends
1700 H   5 H   A    H   C L   3    33       LLHH LLHH UUUU
1800 H   5 H   A    H   C H   3    33       ZZZZ UUUU UUUU
# undefined and floating gates, alone and beside a driver
1900 U   5 H   A    H   C H   3    33       UUUU UUUU UUUU
2000 H   5 U   A    H   C H   3    33       UUUU UUUU UUUU
2100 H   5 H   A    U   C H   3    33       UUUU UUUU UUUU
2200 H   5 H   A    H   C U   3    33       UUUU UUUU UUUU
2300 Z   5 H   A    H   C H   3    33       UUUU UUUU UUUU
2400 H   5 Z   A    H   C H   3    33       UUUU UUUU UUUU
2500 H   5 H   A    Z   C H   3    33       UUUU UUUU UUUU
2600 H   5 H   A    H   C Z   3    33       UUUU UUUU UUUU
2700 U   5 L   A    H   C H   3    33       UUUU UUUU UUUU
2800 H   5 Z   A    L   C H   3    33       UUUU UUUU UUUU
# undefined and floating bits of the one driver
2900 H   F L   LUHZ H   F H   F    33       LUHU LUHU LUHU
3000 H   0 H   0    H   0 L   ULZH 33       ULUH ULUH UUUU
3100 H   0 H   0    L   U L   U    33       UUUU UUUU UUUU
3200 H   U H   U    H   U H   U    33       ZZZZ UUUU UUUU
