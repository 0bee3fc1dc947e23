# What the file drives directly was scheduled before the options held, 52 ns behind it. So w looks for its clock where it
# isn't: it takes the edge over one nanosecond.
u(delay=20)
w(delay=20)
time _CTEN D_U _clock clock _LOAD DCBA => u_Q  v_Q  w_Q
0    L     L   H      L     L     5       UUUU UUUU UUUU
22   L     L   H      L     L     5       UUUU UUUU UUUU
23   L     L   H      L     L     5       5    UUUU UUUU
51   L     L   H      L     L     5       5    UUUU UUUU
52   L     L   H      L     L     5       5    5    5
100  L     L   H      L     H     0       5    5    5
# clocked at 203, and at 200
200  L     L   L      H     H     0       5    5    5
222  L     L   L      H     H     0       5    5    5
223  L     L   L      H     H     0       6    5    5
254  L     L   L      H     H     0       6    5    5
255  L     L   L      H     H     0       6    6    5
300  L     L   L      H     H     0       6    6    5
