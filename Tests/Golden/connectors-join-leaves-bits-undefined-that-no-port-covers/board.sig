time hi bit => q
0    5  L      LHLHUULU
10   A  H      HLHLUUHU
20   F  H      HHHHUUHU
30   0  H      LLLLUUHU
