# Letters go through as they stand; on a net an X is undefined.
time buf.in buf._g ==(dT)=> buf.out q
0    HLHL   L      10       HLHL    HLHL
20   HLZX   L      10       HLZX    HLZU
40   ZUXL   L      10       ZUXL    ZUUL
# A gate at Z or X isn't high, so the buffer drives.
60   C      Z      10       C       C
80   9      Z      10       9       9
100  6      X      10       6       6
120  HLZU   X      10       HLZU    HLZU
# H floats and U is undefined, here too.
140  6      H      10       ZZZZ    ZZZZ
160  6      U      10       UUUU    UUUU
180  6      L      10       6       6
