time _CLR CLK D => plain.1Q other.1Q
0    L    L   H    U        U
34   L    L   H    U        U
35   L    L   H    L        L
100  H    L   H    L        L
200  H    H   H    L        L
234  H    H   H    L        L
235  H    H   H    H        H
