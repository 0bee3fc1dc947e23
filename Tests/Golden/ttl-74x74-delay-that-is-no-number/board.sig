# The delay is read twice, by the new unit and when it takes its parameters, and counts as 0.
time _CD CP D => Q _Q
0    L   L  H    L H
1    H   L  H    L H
2    H   H  H    H L
3    H   L  L    H L
4    H   H  L    L H
