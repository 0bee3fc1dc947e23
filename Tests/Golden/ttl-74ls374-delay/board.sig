time clk _OE D  => plain.Q  plain.dff[7].Q fast.Q   fast.dff[7].Q slow.Q   slow.dff[7].Q
0    L   H   A5    UUUUUUUU U              UUUUUUUU U             UUUUUUUU U
8    L   H   A5    UUUUUUUU U              UUUUUUUU U             UUUUUUUU U
9    L   H   A5    UUUUUUUU U              UUUUUUUU Z             UUUUUUUU U
27   L   H   A5    UUUUUUUU U              UUUUUUUU Z             UUUUUUUU U
28   L   H   A5    UUUUUUUU Z              UUUUUUUU Z             UUUUUUUU U
39   L   H   A5    UUUUUUUU Z              UUUUUUUU Z             UUUUUUUU U
40   L   H   A5    UUUUUUUU Z              UUUUUUUU Z             UUUUUUUU Z
100  H   L   A5    UUUUUUUU Z              UUUUUUUU Z             UUUUUUUU Z
108  H   L   A5    UUUUUUUU Z              UUUUUUUU Z             UUUUUUUU Z
109  H   L   A5    UUUUUUUU Z              A5       H             UUUUUUUU Z
127  H   L   A5    UUUUUUUU Z              A5       H             UUUUUUUU Z
128  H   L   A5    A5       H              A5       H             UUUUUUUU Z
139  H   L   A5    A5       H              A5       H             UUUUUUUU Z
140  H   L   A5    A5       H              A5       H             A5       H
