# Both vectors end at 20, where the second one's cell holds. The first one's wrong cell is never looked at.
time a ==(dT)=> q
0  0 20 H
10 1 10 L
30 1 0  L
