time _CD CP D => Q _Q
0    L   L  L    U U
100  H   L  L    L H
# high one nanosecond before
199  H   L  H    L H
200  H   H  H    L H
234  H   H  H    L H
235  H   H  H    H L
300  H   L  H    H L
# low at the same nanosecond
400  H   H  L    H L
434  H   H  L    H L
435  H   H  L    L H
500  H   L  L    L H
# high one nanosecond behind: too late
600  H   H  L    L H
601  H   H  H    L H
635  H   H  H    L H
636  H   H  H    L H
700  H   L  L    L H
# high for the one nanosecond of the edge
800  H   H  H    L H
801  H   H  L    L H
834  H   H  L    L H
835  H   H  L    H L
836  H   H  L    H L
# clear released with the clock
900  L   L  H    H L
935  L   L  H    L H
1000 H   H  H    L H
1034 H   H  H    L H
1035 H   H  H    H L
# clear released one nanosecond behind the clock
1100 L   L  H    H L
1135 L   L  H    L H
1200 L   H  H    L H
1201 H   H  H    L H
1235 H   H  H    L H
1236 H   H  H    L H
