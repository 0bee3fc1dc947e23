time _CLR clk D  => no_number.Q too_large.Q
0    L    L   A5    UUUUUUUU    UUUUUUUU
26   L    L   A5    UUUUUUUU    UUUUUUUU
27   L    L   A5    00          00
100  H    L   A5    00          00
200  H    H   A5    00          00
226  H    H   A5    00          00
227  H    H   A5    A5          A5
