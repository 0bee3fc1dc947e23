# Enabled.
time x S  ==(dT)=> Y
0    L 0  10       HHHL
20   L 1  10       HHLH
40   L 2  10       HLHH
60   L 3  10       LHHH
# Disabled.
80   H 3  10       HHHH
100  H UU 10       HHHH
120  L 0  10       HHHL
140  H ZL 10       HHHH
# The enable is undefined or floats.
160  U 0  10       UUUU
180  L 1  10       HHLH
200  Z 1  10       UUUU
# A select bit is undefined or floats.
220  L 2  10       HLHH
240  L UL 10       UUUU
260  L 3  10       LHHH
280  L LU 10       UUUU
300  L ZH 10       UUUU
320  L 1  10       HHLH
340  L HZ 10       UUUU
360  L 0  10       HHHL
