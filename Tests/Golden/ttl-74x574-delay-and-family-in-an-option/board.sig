u(delay=12)
# a family alone leaves the delay
v(family=AS)
time _clock _OE D  => u_Q      v_Q
0    H      L   A5    UUUUUUUU UUUUUUUU
100  H      L   A5    UUUUUUUU UUUUUUUU
# clocked at 203
200  L      L   A5    UUUUUUUU UUUUUUUU
214  L      L   A5    UUUUUUUU UUUUUUUU
215  L      L   A5    A5       UUUUUUUU
230  L      L   A5    A5       UUUUUUUU
231  L      L   A5    A5       A5
# What the file drives directly was scheduled before the option held, 28 ns behind it.
300  L      U   A5    A5       A5
312  L      U   A5    A5       A5
327  L      U   A5    A5       A5
328  L      U   A5    UUUUUUUU UUUUUUUU
