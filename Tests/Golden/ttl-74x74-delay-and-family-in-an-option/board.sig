u(delay=12)
v(family=F)
# its own delay counts, not the family
w(family=F)
time _CD _clock D => u_Q v_Q w_Q
0    L   H      H    U   U   U
8    L   H      H    U   U   U
9    L   H      H    U   U   L
13   L   H      H    U   U   L
14   L   H      H    U   L   L
15   L   H      H    L   L   L
100  H   H      H    L   L   L
# clocked at 203
200  H   L      H    L   L   L
211  H   L      H    L   L   L
212  H   L      H    L   L   H
213  H   L      H    L   L   H
214  H   L      H    L   H   H
215  H   L      H    H   H   H
# What the file drives directly was scheduled before the option held: 35 and 9 ns behind it.
300  L   L      H    H   H   H
308  L   L      H    H   H   H
309  L   L      H    H   H   L
312  L   L      H    H   H   L
334  L   L      H    H   H   L
335  L   L      H    L   L   L
