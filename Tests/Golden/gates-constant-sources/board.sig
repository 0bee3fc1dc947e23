time a => high low gated
0 1 H L U
3 1 H L H
5 0 H L H
8 0 H L L
