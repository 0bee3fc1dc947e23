time _CLR clk D  => Q
0    L    L   00    UUUUUUUU
26   L    L   00    UUUUUUUU
27   L    L   00    00
# clear released with the clock, data changing with it
99   L    L   0F    00
100  H    H   5A    00
101  H    L   FF    00
126  H    L   FF    00
127  H    L   FF    5A
128  H    L   FF    5A
# data one nanosecond before, and changing back one behind
199  H    L   3C    5A
200  H    H   3C    5A
201  H    H   C3    5A
226  H    H   C3    5A
227  H    H   C3    3C
228  H    H   C3    3C
# two clocks, two nanoseconds apart
300  H    L   11    3C
400  H    H   11    3C
401  H    L   22    3C
402  H    H   22    3C
426  H    H   22    3C
427  H    H   22    11
428  H    H   22    11
429  H    H   22    22
# clear for one nanosecond
500  L    H   22    22
501  H    H   22    22
526  H    H   22    22
527  H    H   22    00
528  H    H   22    00
# clear pulled with the clock wins
600  H    L   77    00
700  H    H   77    00
727  H    H   77    77
800  H    L   88    77
900  L    H   88    77
926  L    H   88    77
927  L    H   88    00
950  H    H   88    00
977  H    H   88    00
# clear released one nanosecond behind the clock
1000 L    L   99    00
1100 L    H   99    00
1101 H    H   99    00
1128 H    H   99    00
# low for one nanosecond
1200 H    L   99    00
1201 H    H   99    00
1227 H    H   99    00
1228 H    H   99    99
