time a => fromO fromP alsoFromP
0 Z U Z U
1 H H H H
2 L L L L
3 Z U Z U
