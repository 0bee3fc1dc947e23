u(delay=12)
v(family=ALS)
# its own delay counts, not the family
w(family=ALS)
time _CLR _clock D => u_Q v_Q w_Q
0    L    H      H    U   U   U
8    L    H      H    U   U   U
9    L    H      H    U   U   L
14   L    H      H    U   U   L
15   L    H      H    L   U   L
32   L    H      H    L   U   L
33   L    H      H    L   L   L
100  H    H      H    L   L   L
# clocked at 203
200  H    L      H    L   L   L
211  H    L      H    L   L   L
212  H    L      H    L   L   H
214  H    L      H    L   L   H
215  H    L      H    H   L   H
232  H    L      H    H   L   H
233  H    L      H    H   H   H
# What the file drives directly was scheduled before the option held.
300  L    L      H    H   H   H
308  L    L      H    H   H   H
309  L    L      H    H   H   L
312  L    L      H    H   H   L
330  L    L      H    H   H   L
334  L    L      H    H   H   L
335  L    L      H    L   L   L
