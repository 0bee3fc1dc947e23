time _CLR CLK a b => 1Q 2Q 5Q 6Q
0    L    L   L L    U  U  U  U
34   L    L   L L    U  U  U  U
35   L    L   L L    L  L  L  L
# clear released with the clock; `a` stands 1 ns before, `b` comes with it
99   L    L   H L    L  L  L  L
100  H    H   H H    L  L  L  L
101  H    L   H H    L  L  L  L
134  H    L   H H    L  L  L  L
135  H    L   H H    H  H  H  H
136  H    L   H H    H  H  H  H
# `a` falls with the clock, `b` one nanosecond behind
200  H    H   L H    H  H  H  H
201  H    H   L L    H  H  H  H
234  H    H   L L    H  H  H  H
235  H    H   L L    L  H  L  H
236  H    H   L L    L  H  L  H
# two clocks, two nanoseconds apart
300  H    L   H L    L  H  L  H
400  H    H   H L    L  H  L  H
401  H    L   L H    L  H  L  H
402  H    H   L H    L  H  L  H
434  H    H   L H    L  H  L  H
435  H    H   L H    H  L  H  L
436  H    H   L H    H  L  H  L
437  H    H   L H    L  H  L  H
# clear for one nanosecond
500  L    H   L H    L  H  L  H
501  H    H   L H    L  H  L  H
534  H    H   L H    L  H  L  H
535  H    H   L H    L  L  L  L
536  H    H   L H    L  L  L  L
# clear released one nanosecond behind the clock
600  L    L   H H    L  L  L  L
700  L    H   H H    L  L  L  L
701  H    H   H H    L  L  L  L
735  H    H   H H    L  L  L  L
736  H    H   H H    L  L  L  L
# low for one nanosecond
800  H    L   H L    L  L  L  L
801  H    H   H L    L  L  L  L
835  H    H   H L    L  L  L  L
836  H    H   H L    H  L  H  L
