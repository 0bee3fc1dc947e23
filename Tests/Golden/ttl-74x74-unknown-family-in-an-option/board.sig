# The load goes well; the run refuses it.
u(family=XYZ)
time _CD CP D ==(dT)=> Q _Q
0    L   L  H 35       L H
100  H   L  H 35       L H
