# One nanosecond of H.
time in _g => out
0    L  L     U
10   H  L     L
11   L  L     L
14   L  L     L
15   L  L     H
16   L  L     L
# Two pulses within one delay.
30   H  L     L
31   L  L     L
32   H  L     L
33   L  L     L
34   L  L     L
35   L  L     H
36   L  L     L
37   L  L     H
38   L  L     L
# One nanosecond off.
50   L  H     L
51   L  L     L
54   L  L     L
55   L  L     Z
56   L  L     L
# Off for a nanosecond, and on again with other data.
60   L  H     L
61   H  L     L
64   H  L     L
65   H  L     Z
66   H  L     H
