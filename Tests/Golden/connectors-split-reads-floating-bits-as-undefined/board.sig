# Both the bus and the Join keep what floats; what the Split gives is undefined there.
time d d2 _g _g2 ==(dT)=> bus  all  hi lo
0    9 1  L  H   10       HLLH HLLH HL LH
20   6 1  L  H   10       LHHL LHHL LH HL
40   6 1  H  H   10       ZZZZ ZZZZ UU UU
60   6 1  H  L   10       LHLH LHLH LH LH
80   6 2  H  L   10       HLHL HLHL HL HL
100  6 UL H  L   10       ULUL ULUL UL UL
120  6 2  L  L   10       UUUU UUUU UU UU
140  6 2  L  H   10       LHHL LHHL LH HL
