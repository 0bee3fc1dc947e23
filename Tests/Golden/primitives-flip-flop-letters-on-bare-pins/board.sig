time ff.D ff.clk ff._OE ==(dT)=> ff.Q ff._Q
0    L    L      L      10       U    U
20   H    H      L      10       H    L
# An edge to X or from X doesn't clock.
40   L    X      L      10       H    L
60   L    H      L      10       H    L
80   L    L      L      10       H    L
100  L    X      L      10       H    L
120  L    H      L      10       H    L
# Neither does one through Z.
140  L    L      L      10       H    L
160  L    Z      L      10       H    L
180  L    H      L      10       H    L
# A true one does.
200  L    L      L      10       H    L
220  L    H      L      10       L    H
# An enable at Z or X leaves the outputs alone, and the clock goes on.
240  H    L      Z      10       L    H
260  H    H      Z      10       L    H
280  H    H      L      10       H    L
300  L    L      X      10       H    L
320  L    H      X      10       H    L
340  L    H      L      10       L    H
# Outputs that float or are undefined stay so under it.
360  L    H      H      10       Z    Z
380  L    H      Z      10       Z    Z
400  L    H      L      10       L    H
420  L    H      U      10       U    U
440  L    H      X      10       U    U
460  L    H      L      10       L    H
# Stored Z or X: both outputs are undefined.
480  Z    L      L      10       L    H
500  Z    H      L      10       U    U
520  H    L      L      10       U    U
540  H    H      L      10       H    L
560  X    L      L      10       H    L
580  X    H      L      10       U    U
600  L    L      L      10       U    U
620  L    H      L      10       L    H
