time _CLR _CLK => plain.1Q plain._2Q fast.1Q fast._2Q slow.1Q slow._2Q
0    L    H       U        U         U       U        U       U
6    L    H       U        U         U       U        U       U
7    L    H       U        U         L       H        U       U
19   L    H       U        U         L       H        U       U
20   L    H       L        H         L       H        U       U
30   L    H       L        H         L       H        U       U
31   L    H       L        H         L       H        L       H
100  H    H       L        H         L       H        L       H
200  H    L       L        H         L       H        L       H
206  H    L       L        H         L       H        L       H
207  H    L       L        H         H       L        L       H
219  H    L       L        H         H       L        L       H
220  H    L       H        L         H       L        L       H
230  H    L       H        L         H       L        L       H
231  H    L       H        L         H       L        H       L
