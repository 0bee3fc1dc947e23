time _CD CP D => Q _Q
0    L   L  L    U U
34   L   L  L    U U
35   L   L  L    L H
100  H   L  H    L H
# high for one nanosecond
200  H   H  H    L H
201  H   L  H    L H
234  H   L  H    L H
235  H   L  H    H L
236  H   L  H    H L
# two flanks, two nanoseconds apart, with different data
399  H   L  L    H L
400  H   H  L    H L
401  H   L  H    H L
402  H   H  H    H L
403  H   L  H    H L
434  H   L  H    H L
435  H   L  H    L H
436  H   L  H    L H
437  H   L  H    H L
# clear for one nanosecond
500  L   L  H    H L
501  H   L  H    H L
534  H   L  H    H L
535  H   L  H    L H
536  H   L  H    L H
# low for one nanosecond
600  H   H  H    L H
634  H   H  H    L H
635  H   H  H    H L
700  H   L  L    H L
701  H   H  L    H L
735  H   H  L    H L
736  H   H  L    L H
