time _CLR _CLK _1PRE 1J 1K => 1Q _1Q 2Q _2Q
0    L    H    H     L  L     U  U   U  U
19   L    H    H     L  L     U  U   U  U
20   L    H    H     L  L     L  H   L  H
# clear released with the clock, J coming with it; low for one nanosecond
100  H    L    H     H  L     L  H   L  H
101  H    H    H     H  L     L  H   L  H
119  H    H    H     H  L     L  H   L  H
120  H    H    H     H  L     H  L   H  L
121  H    H    H     H  L     H  L   H  L
# K stands one nanosecond before and is gone with the clock: the first half holds
199  H    H    H     L  H     H  L   H  L
200  H    L    H     L  L     H  L   H  L
201  H    L    H     L  H     H  L   H  L
219  H    L    H     L  H     H  L   H  L
220  H    L    H     L  H     H  L   L  H
221  H    L    H     L  H     H  L   L  H
# J and K only for the nanosecond of the edge
300  H    H    H     L  L     H  L   L  H
400  H    L    H     H  H     H  L   L  H
401  H    L    H     L  L     H  L   L  H
419  H    L    H     L  L     H  L   L  H
420  H    L    H     L  L     L  H   H  L
421  H    L    H     L  L     L  H   H  L
# two clocks, two nanoseconds apart
500  H    H    H     H  L     L  H   H  L
600  H    L    H     H  L     L  H   H  L
601  H    H    H     H  L     L  H   H  L
602  H    L    H     L  H     L  H   H  L
619  H    L    H     L  H     L  H   H  L
620  H    L    H     L  H     H  L   L  H
621  H    L    H     L  H     H  L   L  H
622  H    L    H     L  H     L  H   H  L
# preset for one nanosecond, clear for one
700  H    L    L     L  L     L  H   H  L
701  H    L    H     L  L     L  H   H  L
719  H    L    H     L  L     L  H   H  L
720  H    L    H     L  L     H  L   H  L
721  H    L    H     L  L     H  L   H  L
800  L    L    H     L  L     H  L   H  L
801  H    L    H     L  L     H  L   H  L
819  H    L    H     L  L     H  L   H  L
820  H    L    H     L  L     L  H   L  H
821  H    L    H     L  L     L  H   L  H
# clear released one nanosecond behind the clock
900  L    H    H     H  H     L  H   L  H
1000 L    L    H     H  H     L  H   L  H
1001 H    L    H     H  H     L  H   L  H
1020 H    L    H     H  H     L  H   L  H
1021 H    L    H     H  H     L  H   L  H
