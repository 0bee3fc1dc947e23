# A stimulus of `other` resolves the net at its time before the run, when the gate hasn't driven it yet. So the net is U
# at each of these times, up to the gate's next edge.
time a other ==(dT)=> q p
0  0 Z 3 H H
10 1 Z 3 L L
20 1 1 3 U U  # two active drivers on the joined nets
30 0 Z 3 H H
40 U Z 3 U U
