u(delay=7)
time _CLR clock => u_Q v_Q
0    L    L        U   U
9    L    L        U   U
10   L    L        L   U
19   L    L        L   U
20   L    L        L   L
100  H    L        L   L
# clocked at 203
200  H    H        L   L
209  H    H        L   L
210  H    H        H   L
222  H    H        H   L
223  H    H        H   H
# What the file drives directly was scheduled before the option held, 20 ns behind it.
300  L    H        H   H
307  L    H        H   H
319  L    H        H   H
320  L    H        L   L
