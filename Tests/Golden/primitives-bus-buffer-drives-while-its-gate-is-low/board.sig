# Gate low: the data.
time a4   a8       _g ==(dT)=> q4   q8
0    A    A5       L  10       A    A5
20   5    5A       L  10       5    5A
40   0    00       L  10       0    00
60   F    FF       L  10       F    FF
# Gate high: every bit floats.
80   F    FF       H  10       ZZZZ ZZZZZZZZ
100  3    3C       H  10       ZZZZ ZZZZZZZZ
120  3    3C       L  10       3    3C
# Gate undefined or floating: every bit is undefined.
140  3    3C       U  10       UUUU UUUUUUUU
160  C    C3       L  10       C    C3
180  C    C3       Z  10       UUUU UUUUUUUU
200  C    C3       H  10       ZZZZ ZZZZZZZZ
# Bit by bit: undefined and floating inputs are undefined outputs.
220  HLZU HLZUULZH L  10       HLUU HLUUULUH
240  ZZZZ ZZZZ0    L  10       UUUU UUUULLLL
260  ZZZZ ZZZZ0    H  10       ZZZZ ZZZZZZZZ
280  9    96       L  10       9    96
