time clk _OE D  => Q
0    L   L   00    UUUUUUUU
99   L   L   0F    UUUUUUUU
# data changing with the clock; high for one nanosecond
100  H   L   5A    UUUUUUUU
101  L   L   FF    UUUUUUUU
127  L   L   FF    UUUUUUUU
128  L   L   FF    5A
129  L   L   FF    5A
# data one nanosecond before, and changing one behind
199  L   L   3C    5A
200  H   L   3C    5A
201  H   L   C3    5A
227  H   L   C3    5A
228  H   L   C3    3C
229  H   L   C3    3C
# two clocks, two nanoseconds apart
300  L   L   11    3C
400  H   L   11    3C
401  L   L   22    3C
402  H   L   22    3C
427  H   L   22    3C
428  H   L   22    11
429  H   L   22    11
430  H   L   22    22
# disabled for one nanosecond
500  H   H   22    22
501  H   L   22    22
527  H   L   22    22
528  H   L   22    UUUUUUUU
529  H   L   22    22
# low for one nanosecond
600  L   L   33    22
601  H   L   33    22
628  H   L   33    22
629  H   L   33    33
# enabled for one nanosecond, clocked in it
700  L   H   44    33
728  L   H   44    UUUUUUUU
800  H   L   44    UUUUUUUU
801  H   H   44    UUUUUUUU
827  H   H   44    UUUUUUUU
828  H   H   44    44
829  H   H   44    UUUUUUUU
