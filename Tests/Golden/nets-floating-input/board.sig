time a ==(dT)=> q p
0 0 3 L U
10 1 3 U H
20 Z 3 U U
