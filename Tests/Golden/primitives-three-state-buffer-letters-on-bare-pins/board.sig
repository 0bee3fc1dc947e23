# A letter goes through as it stands; on a net an X is undefined.
time buf.in buf._g ==(dT)=> buf.out q
0    L      L      3        L       L
10   H      L      3        H       H
20   U      L      3        U       U
30   Z      L      3        Z       Z
40   X      L      3        X       U
# A gate at Z or X isn't high, so the buffer drives.
50   H      Z      3        H       H
60   L      Z      3        L       L
70   H      X      3        H       H
80   L      X      3        L       L
90   Z      X      3        Z       Z
# H floats and U is undefined, here too.
100  H      H      3        Z       Z
110  H      U      3        U       U
120  L      H      3        Z       Z
130  L      U      3        U       U
140  L      L      3        L       L
