time a  => q1 q2 q3 q4 q5
0    A5    A  5  9  HL L
10   5A    5  A  6  LH H
20   0F    0  F  3  LH L
30   F0    F  0  C  HL H
