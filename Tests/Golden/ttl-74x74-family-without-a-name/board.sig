time CP => Q
0    L     U
100  H     U
