time _G P  Q  ==(dT)=> _P=Q
0    L  00 00 25       L
# each bit, low and high in P
100  L  00 01 25       H
200  L  00 02 25       H
300  L  00 04 25       H
400  L  00 08 25       H
500  L  00 10 25       H
600  L  00 20 25       H
700  L  00 40 25       H
800  L  00 80 25       H
900  L  FF FF 25       L
1000 L  FF FE 25       H
1100 L  FF FD 25       H
1200 L  FF FB 25       H
1300 L  FF F7 25       H
1400 L  FF EF 25       H
1500 L  FF DF 25       H
1600 L  FF BF 25       H
1700 L  FF 7F 25       H
# equal and unlike words
1800 L  A5 A5 25       L
1900 L  A5 5A 25       H
2000 L  5A 5A 25       L
2100 L  3C 3D 25       H
2200 L  3D 3D 25       L
2300 L  80 01 25       H
2400 L  01 01 25       L
# not enabled: high, equal or not
2500 H  00 00 25       H
2600 H  00 FF 25       H
2700 H  A5 A5 25       H
2800 L  A5 A5 25       L
