u(delay=31)
v(delay=0b10)
time A B => u.Y1 u.Y2 u.Y3 u.Y4 other.Y1 other.Y2 other.Y3 other.Y4 v.Y1 v.Y2 v.Y3 v.Y4
0    H H    U    U    U    U    U        U        U        U        U    U    U    U
2    H H    U    U    U    U    U        U        U        U        U    U    U    U
3    H H    U    U    U    U    U        U        U        U        L    L    L    L
13   H H    U    U    U    U    U        U        U        U        L    L    L    L
14   H H    U    U    U    U    L        L        L        L        L    L    L    L
31   H H    U    U    U    U    L        L        L        L        L    L    L    L
32   H H    L    L    L    L    L        L        L        L        L    L    L    L
100  L H    L    L    L    L    L        L        L        L        L    L    L    L
102  L H    L    L    L    L    L        L        L        L        L    L    L    L
103  L H    L    L    L    L    L        L        L        L        H    H    H    H
113  L H    L    L    L    L    L        L        L        L        H    H    H    H
114  L H    L    L    L    L    H        H        H        H        H    H    H    H
131  L H    L    L    L    L    H        H        H        H        H    H    H    H
132  L H    H    H    H    H    H        H        H        H        H    H    H    H
200  H H    H    H    H    H    H        H        H        H        H    H    H    H
202  H H    H    H    H    H    H        H        H        H        H    H    H    H
203  H H    H    H    H    H    H        H        H        H        L    L    L    L
213  H H    H    H    H    H    H        H        H        H        L    L    L    L
214  H H    H    H    H    H    L        L        L        L        L    L    L    L
231  H H    H    H    H    H    L        L        L        L        L    L    L    L
232  H H    L    L    L    L    L        L        L        L        L    L    L    L
