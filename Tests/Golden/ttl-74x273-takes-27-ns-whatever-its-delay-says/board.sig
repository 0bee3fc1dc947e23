time _CLR clk D  => plain.Q  ls.Q     short.Q  both.Q
0    L    L   A5    UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
5    L    L   A5    UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
26   L    L   A5    UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
27   L    L   A5    00       00       00       00
100  H    L   A5    00       00       00       00
200  H    H   A5    00       00       00       00
205  H    H   A5    00       00       00       00
226  H    H   A5    00       00       00       00
227  H    H   A5    A5       A5       A5       A5
240  H    H   A5    A5       A5       A5       A5
