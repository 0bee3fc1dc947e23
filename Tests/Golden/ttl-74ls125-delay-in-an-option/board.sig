u(delay=60)
time C A => u.Y1 u.Y2 u.Y3 u.Y4 other.Y1 other.Y2 other.Y3 other.Y4
0    H H    U    U    U    U    U        U        U        U
25   H H    U    U    U    U    U        U        U        U
26   H H    U    U    U    U    H        H        H        H
60   H H    U    U    U    U    H        H        H        H
61   H H    H    H    H    H    H        H        H        H
100  L H    H    H    H    H    H        H        H        H
125  L H    H    H    H    H    H        H        H        H
126  L H    H    H    H    H    Z        Z        Z        Z
160  L H    H    H    H    H    Z        Z        Z        Z
161  L H    Z    Z    Z    Z    Z        Z        Z        Z
200  H H    Z    Z    Z    Z    Z        Z        Z        Z
225  H H    Z    Z    Z    Z    Z        Z        Z        Z
226  H H    Z    Z    Z    Z    H        H        H        H
260  H H    Z    Z    Z    Z    H        H        H        H
261  H H    H    H    H    H    H        H        H        H
