# The load goes well; the run refuses it.
u(family=XYZ)
time _CLR CLK a b ==(dT)=> 1Q 2Q 5Q 6Q
0    L    L   H L 35       L  L  L  L
100  H    L   H L 35       L  L  L  L
