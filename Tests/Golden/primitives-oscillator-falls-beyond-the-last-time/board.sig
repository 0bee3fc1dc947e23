time       idle => slow.out slowest.out
0          L       H        H
999999999  L       H        H
1000000000 L       L        H
1073741548 L       L        H
1073741549 L       L        L
1999999999 L       L        L
2000000000 L       H        L
