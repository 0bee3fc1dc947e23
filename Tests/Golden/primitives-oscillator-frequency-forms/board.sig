time idle => p400.out p250.out p100.out
0    L       H        L        H
15   L       H        L        H
16   L       H        H        H
49   L       H        H        H
50   L       H        H        L
99   L       H        H        L
100  L       H        H        H
140  L       H        H        H
141  L       H        L        H
199  L       H        L        L
200  L       L        L        H
265  L       L        L        L
266  L       L        H        L
300  L       L        H        H
399  L       L        L        L
400  L       H        L        H
