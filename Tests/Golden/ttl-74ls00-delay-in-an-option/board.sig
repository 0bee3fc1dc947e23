u(delay=17)
v(delay=0b10)
time A B => u.Y1 u.Y2 u.Y3 u.Y4 other.Y1 other.Y2 other.Y3 other.Y4 v.Y1 v.Y2 v.Y3 v.Y4
0    H H    U    U    U    U    U        U        U        U        U    U    U    U
2    H H    U    U    U    U    U        U        U        U        U    U    U    U
3    H H    U    U    U    U    U        U        U        U        H    H    H    H
10   H H    U    U    U    U    U        U        U        U        H    H    H    H
11   H H    U    U    U    U    H        H        H        H        H    H    H    H
17   H H    U    U    U    U    H        H        H        H        H    H    H    H
18   H H    H    H    H    H    H        H        H        H        H    H    H    H
100  L H    H    H    H    H    H        H        H        H        H    H    H    H
102  L H    H    H    H    H    H        H        H        H        H    H    H    H
103  L H    H    H    H    H    H        H        H        H        L    L    L    L
110  L H    H    H    H    H    H        H        H        H        L    L    L    L
111  L H    H    H    H    H    L        L        L        L        L    L    L    L
117  L H    H    H    H    H    L        L        L        L        L    L    L    L
118  L H    L    L    L    L    L        L        L        L        L    L    L    L
200  H H    L    L    L    L    L        L        L        L        L    L    L    L
202  H H    L    L    L    L    L        L        L        L        L    L    L    L
203  H H    L    L    L    L    L        L        L        L        H    H    H    H
210  H H    L    L    L    L    L        L        L        L        H    H    H    H
211  H H    L    L    L    L    H        H        H        H        H    H    H    H
217  H H    L    L    L    L    H        H        H        H        H    H    H    H
218  H H    H    H    H    H    H        H        H        H        H    H    H    H
