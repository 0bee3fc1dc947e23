time _SD _CD CP D => Q _Q
0    H   L   L  H    L H
1    H   H   L  H    L H
2    H   H   H  H    H L
3    H   H   L  L    H L
4    H   H   H  L    L H
5    L   H   H  L    H L
6    L   L   H  L    H H
7    H   U   H  L    U U
