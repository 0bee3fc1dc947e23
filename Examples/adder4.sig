# Sums of two 4-bit numbers, looked at 45 ns after the inputs change: the longest way, from a0 through all carries to s3
# and cout, goes through nine gates of 3 ns each.

time a3 a2 a1 a0  b3 b2 b1 b0  cin  ==(dT)=>  cout s3 s2 s1 s0

# 0 + 0
0     L L L L   L L L L   L   45   L   L L L L
# 1 + 2
50    L L L H   L L H L   L   45   L   L L H H
# 5 + 5
100   L H L H   L H L H   L   45   L   H L H L
# 7 + 1: a carry through three bits
150   L H H H   L L L H   L   45   L   H L L L
# 15 + 1: a carry through all of them
200   H H H H   L L L H   L   45   H   L L L L
# 15 + 0 and a carry in
250   H H H H   L L L L   H   45   H   L L L L
# 10 + 5, then with a carry in
300   H L H L   L H L H   L   45   L   H H H H
350   H L H L   L H L H   H   45   H   L L L L
# 15 + 15 + 1
400   H H H H   H H H H   H   45   H   H H H H
# An undefined carry in spoils just the bits that it reaches: in 0 + 0 the lowest one.
450   L L L L   L L L L   U   45   L   L L L U
