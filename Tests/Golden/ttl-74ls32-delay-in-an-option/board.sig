u(delay=6)
v(delay=0b10)
time A B => u.Y1 u.Y2 u.Y3 u.Y4 other.Y1 other.Y2 other.Y3 other.Y4 v.Y1 v.Y2 v.Y3 v.Y4
0    H L    U    U    U    U    U        U        U        U        U    U    U    U
2    H L    U    U    U    U    U        U        U        U        U    U    U    U
3    H L    U    U    U    U    U        U        U        U        L    L    L    L
6    H L    U    U    U    U    U        U        U        U        L    L    L    L
7    H L    L    L    L    L    U        U        U        U        L    L    L    L
14   H L    L    L    L    L    U        U        U        U        L    L    L    L
15   H L    L    L    L    L    L        L        L        L        L    L    L    L
100  L L    L    L    L    L    L        L        L        L        L    L    L    L
102  L L    L    L    L    L    L        L        L        L        L    L    L    L
103  L L    L    L    L    L    L        L        L        L        H    H    H    H
106  L L    L    L    L    L    L        L        L        L        H    H    H    H
107  L L    H    H    H    H    L        L        L        L        H    H    H    H
114  L L    H    H    H    H    L        L        L        L        H    H    H    H
115  L L    H    H    H    H    H        H        H        H        H    H    H    H
200  H L    H    H    H    H    H        H        H        H        H    H    H    H
202  H L    H    H    H    H    H        H        H        H        H    H    H    H
203  H L    H    H    H    H    H        H        H        H        L    L    L    L
206  H L    H    H    H    H    H        H        H        H        L    L    L    L
207  H L    L    L    L    L    H        H        H        H        L    L    L    L
214  H L    L    L    L    L    H        H        H        H        L    L    L    L
215  H L    L    L    L    L    L        L        L        L        L    L    L    L
