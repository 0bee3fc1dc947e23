u(delay=5, family=LS)
time _CLR _clock D  => u_Q      v_Q
0    L    H      A5    UUUUUUUU UUUUUUUU
26   L    H      A5    UUUUUUUU UUUUUUUU
27   L    H      A5    00       00
100  H    H      A5    00       00
# clocked at 203
200  H    L      A5    00       00
208  H    L      A5    00       00
229  H    L      A5    00       00
230  H    L      A5    A5       A5
