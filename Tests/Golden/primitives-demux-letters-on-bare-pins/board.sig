# Enable at Z or X: the outputs stay what they are.
time pins.x pins.s1 pins.s0 bus.x bus.S ==(dT)=> pins.y3 pins.y2 pins.y1 pins.y0 bus.Y
0    L      H       L       L     HL    10       H       L       H       H       HLHH
20   Z      L       L       Z     LL    10       H       L       H       H       HLHH
40   L      L       L       L     LL    10       H       H       H       L       HHHL
60   X      H       H       X     HH    10       H       H       H       L       HHHL
80   L      H       H       L     HH    10       L       H       H       H       LHHH
100  H      H       H       H     HH    10       H       H       H       H       HHHH
120  Z      L       H       Z     LH    10       H       H       H       H       HHHH
140  L      L       H       L     LH    10       H       H       L       H       HHLH
160  U      L       H       U     LH    10       U       U       U       U       UUUU
180  X      L       H       X     LH    10       U       U       U       U       UUUU
# A select bit at U decides, even beside one at Z or X.
200  L      H       L       L     HL    10       H       L       H       H       HLHH
220  L      U       Z       L     UZ    10       U       U       U       U       UUUU
240  L      L       L       L     LL    10       H       H       H       L       HHHL
260  L      X       U       L     XU    10       U       U       U       U       UUUU
# Selects at Z or X don't matter while the unit isn't enabled.
280  H      Z       L       H     ZL    10       H       H       H       H       HHHH
300  U      X       Z       U     XZ    10       U       U       U       U       UUUU
320  Z      Z       Z       Z     ZZ    10       U       U       U       U       UUUU
340  L      L       H       L     LH    10       H       H       L       H       HHLH
