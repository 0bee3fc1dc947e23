toals(family=ALS)
tols(family=LS)
deaf(delay=5)
time G => toals._P=Q tols._P=Q deaf._P=Q other._P=Q
0    H    U          U         U         U
5    H    U          U         U         U
6    H    U          U         U         U
22   H    U          U         U         U
23   H    L          U         U         U
25   H    L          U         U         U
26   H    L          L         L         L
100  L    L          L         L         L
105  L    L          L         L         L
106  L    L          L         L         L
122  L    L          L         L         L
123  L    H          L         L         L
125  L    H          L         L         L
126  L    H          H         H         H
200  H    H          H         H         H
205  H    H          H         H         H
206  H    H          H         H         H
222  H    H          H         H         H
223  H    L          H         H         H
225  H    L          H         H         H
226  H    L          L         L         L
