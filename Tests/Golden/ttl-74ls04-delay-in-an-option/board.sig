u(delay=0x16)
v(delay=3)
time A => u.Y1 u.Y2 u.Y3 u.Y4 u.Y5 u.Y6 other.Y1 other.Y2 other.Y3 other.Y4 other.Y5 other.Y6 v.Y1 v.Y2 v.Y3 v.Y4 v.Y5 v.Y6
0    H    U    U    U    U    U    U    U        U        U        U        U        U        U    U    U    U    U    U
3    H    U    U    U    U    U    U    U        U        U        U        U        U        U    U    U    U    U    U
4    H    U    U    U    U    U    U    U        U        U        U        U        U        H    H    H    H    H    H
10   H    U    U    U    U    U    U    U        U        U        U        U        U        H    H    H    H    H    H
11   H    U    U    U    U    U    U    H        H        H        H        H        H        H    H    H    H    H    H
22   H    U    U    U    U    U    U    H        H        H        H        H        H        H    H    H    H    H    H
23   H    H    H    H    H    H    H    H        H        H        H        H        H        H    H    H    H    H    H
100  L    H    H    H    H    H    H    H        H        H        H        H        H        H    H    H    H    H    H
103  L    H    H    H    H    H    H    H        H        H        H        H        H        H    H    H    H    H    H
104  L    H    H    H    H    H    H    H        H        H        H        H        H        L    L    L    L    L    L
110  L    H    H    H    H    H    H    H        H        H        H        H        H        L    L    L    L    L    L
111  L    H    H    H    H    H    H    L        L        L        L        L        L        L    L    L    L    L    L
122  L    H    H    H    H    H    H    L        L        L        L        L        L        L    L    L    L    L    L
123  L    L    L    L    L    L    L    L        L        L        L        L        L        L    L    L    L    L    L
200  H    L    L    L    L    L    L    L        L        L        L        L        L        L    L    L    L    L    L
203  H    L    L    L    L    L    L    L        L        L        L        L        L        L    L    L    L    L    L
204  H    L    L    L    L    L    L    L        L        L        L        L        L        H    H    H    H    H    H
210  H    L    L    L    L    L    L    L        L        L        L        L        L        H    H    H    H    H    H
211  H    L    L    L    L    L    L    H        H        H        H        H        H        H    H    H    H    H    H
222  H    L    L    L    L    L    L    H        H        H        H        H        H        H    H    H    H    H    H
223  H    H    H    H    H    H    H    H        H        H        H        H        H        H    H    H    H    H    H
