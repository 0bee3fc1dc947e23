# rom.bin holds 5A C3 96.
time A    W  _RD _WR => bus
# all are off
0    0000 00 H   H      UUUUUUUU
187  0000 00 H   H      UUUUUUUU
188  0000 00 H   H      ZZZZZZZZ
# write 3C to the first RAM, then A5 to the second
200  0123 3C H   H      ZZZZZZZZ
250  0123 3C H   L      ZZZZZZZZ
261  0123 3C H   L      ZZZZZZZZ
262  0123 3C H   L      3C
350  0123 3C H   H      3C
361  0123 3C H   H      3C
362  0123 3C H   H      ZZZZZZZZ
400  4567 A5 H   H      ZZZZZZZZ
500  4567 A5 H   L      ZZZZZZZZ
511  4567 A5 H   L      ZZZZZZZZ
512  4567 A5 H   L      A5
600  4567 A5 H   H      A5
611  4567 A5 H   H      A5
612  4567 A5 H   H      ZZZZZZZZ
# read the first: 70 ns from _RD
700  0123 00 H   H      ZZZZZZZZ
800  0123 00 L   H      ZZZZZZZZ
869  0123 00 L   H      ZZZZZZZZ
870  0123 00 L   H      3C
# on to the second: until the decoder has switched, the first looks up the new address
1000 4567 00 L   H      3C
1069 4567 00 L   H      3C
1070 4567 00 L   H      UUUUUUUU
1107 4567 00 L   H      UUUUUUUU
1108 4567 00 L   H      A5
# nothing lies at 8000
1300 8000 00 L   H      A5
1369 8000 00 L   H      A5
1370 8000 00 L   H      UUUUUUUU
1407 8000 00 L   H      UUUUUUUU
1408 8000 00 L   H      ZZZZZZZZ
# the EPROM: 38 and 150 ns
1600 C001 00 L   H      ZZZZZZZZ
1787 C001 00 L   H      ZZZZZZZZ
1788 C001 00 L   H      C3
# back to the first RAM, which drives 80 ns before the EPROM lets go
2000 0123 00 L   H      C3
2107 0123 00 L   H      C3
2108 0123 00 L   H      UUUUUUUU
2187 0123 00 L   H      UUUUUUUU
2188 0123 00 L   H      3C
2400 0123 00 H   H      3C
2469 0123 00 H   H      3C
2470 0123 00 H   H      ZZZZZZZZ
# a write against the EPROM clashes even with its own byte
2600 C002 96 L   H      ZZZZZZZZ
2669 C002 96 L   H      ZZZZZZZZ
2670 C002 96 L   H      UUUUUUUU
2707 C002 96 L   H      UUUUUUUU
2708 C002 96 L   H      ZZZZZZZZ
2787 C002 96 L   H      ZZZZZZZZ
2788 C002 96 L   H      96
3000 C002 96 L   L      96
3011 C002 96 L   L      96
3012 C002 96 L   L      UUUUUUUU
3100 C002 96 L   H      UUUUUUUU
3111 C002 96 L   H      UUUUUUUU
3112 C002 96 L   H      96
3300 0123 96 L   H      96
3487 0123 96 L   H      UUUUUUUU
3488 0123 96 L   H      3C
