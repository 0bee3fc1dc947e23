# The stimuli have scheduled u for 23 ns behind each edge before the option holds; it then looks 40 ns back.
u(delay=40)
time D C B A _G1 _G2 => u.Y              u.Y3 u.Y9
0    L L H H L   L      UUUUUUUUUUUUUUUU U    U
22   L L H H L   L      UUUUUUUUUUUUUUUU U    U
23   L L H H L   L      UUUUUUUUUUUUUUUU U    U
30   L H L H L   L      UUUUUUUUUUUUUUUU U    U
39   L H L H L   L      UUUUUUUUUUUUUUUU U    U
40   L H L H L   L      UUUUUUUUUUUUUUUU U    U
52   L H L H L   L      UUUUUUUUUUUUUUUU U    U
53   L H L H L   L      HHHHHHHHHHHHLHHH L    H
60   H L L H L   L      HHHHHHHHHHHHLHHH L    H
70   H L L H L   L      HHHHHHHHHHHHLHHH L    H
82   H L L H L   L      HHHHHHHHHHHHLHHH L    H
83   H L L H L   L      HHHHHHHHHHLHHHHH H    H
99   H L L H L   L      HHHHHHHHHHLHHHHH H    H
100  H H H H L   L      HHHHHHHHHHLHHHHH H    H
122  H H H H L   L      HHHHHHHHHHLHHHHH H    H
123  H H H H L   L      HHHHHHLHHHHHHHHH H    L
140  H H H H L   L      HHHHHHLHHHHHHHHH H    L
200  H H H H L   L      HHHHHHLHHHHHHHHH H    L
