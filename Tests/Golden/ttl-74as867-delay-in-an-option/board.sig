u(delay=6)
# What the file drives directly was scheduled before the option held, 16 ns behind it.
time S1 S0 _clock HA => QHA
0    L  L  H      00    UUUUUUUU
9    L  L  H      00    UUUUUUUU
15   L  L  H      00    UUUUUUUU
16   L  L  H      00    00
100  H  L  H      A5    00
# clocked at 203
200  H  L  L      A5    00
208  H  L  L      A5    00
209  H  L  L      A5    A5
300  L  L  L      A5    A5
306  L  L  L      A5    A5
315  L  L  L      A5    A5
316  L  L  L      A5    00
