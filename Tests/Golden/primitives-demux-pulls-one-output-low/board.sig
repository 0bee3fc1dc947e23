# Enabled.
time x s1 s0 ==(dT)=> y3 y2 y1 y0
0    L L  L  10       H  H  H  L
20   L L  H  10       H  H  L  H
40   L H  L  10       H  L  H  H
60   L H  H  10       L  H  H  H
# Disabled, whatever is selected.
80   H L  L  10       H  H  H  H
100  L L  L  10       H  H  H  L
120  H L  H  10       H  H  H  H
140  H H  L  10       H  H  H  H
160  L H  L  10       H  L  H  H
180  H H  H  10       H  H  H  H
200  L U  L  10       U  U  U  U
220  H U  L  10       H  H  H  H
240  H Z  Z  10       H  H  H  H
# The enable is undefined or floats.
260  U L  L  10       U  U  U  U
280  L L  L  10       H  H  H  L
300  Z L  L  10       U  U  U  U
320  U H  H  10       U  U  U  U
340  L H  H  10       L  H  H  H
# A select pin is undefined or floats.
360  L L  U  10       U  U  U  U
380  L L  H  10       H  H  L  H
400  L H  U  10       U  U  U  U
420  L U  U  10       U  U  U  U
440  L H  L  10       H  L  H  H
460  L Z  L  10       U  U  U  U
480  L L  L  10       H  H  H  L
500  L H  Z  10       U  U  U  U
520  L H  H  10       L  H  H  H
