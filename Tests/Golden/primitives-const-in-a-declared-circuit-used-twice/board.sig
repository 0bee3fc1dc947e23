time idle => q1 q2 q3 q4 q5 q6
0    L       5  5  A  3  A  3
100  H       5  5  A  3  A  3
