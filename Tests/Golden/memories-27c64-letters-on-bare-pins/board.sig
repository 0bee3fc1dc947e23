# two.bin holds 5A C3.
time rom.A         rom._OE rom._CS => rom.D
# a Z or X counts as neither high nor low
0    1             L       L          C3
10   1             Z       L          UUUUUUUU
20   0             L       L          5A
30   0             X       L          UUUUUUUU
40   1             L       L          C3
50   1             L       Z          UUUUUUUU
60   0             L       L          5A
70   0             L       X          UUUUUUUU
80   1             H       L          ZZZZZZZZ
90   1             H       Z          UUUUUUUU
100  1             H       H          ZZZZZZZZ
110  1             H       X          UUUUUUUU
120  1             L       H          ZZZZZZZZ
130  1             Z       X          UUUUUUUU
# a chip that is off looks at nothing else
140  1             Z       H          ZZZZZZZZ
150  1             L       L          C3
160  1             X       H          ZZZZZZZZ
170  1             L       L          C3
180  XXXXXXXXXXXXX U       H          ZZZZZZZZ
# the address
190  0             L       L          5A
200  LLLLLLLLLLLLZ L       L          UUUUUUUU
210  1             L       L          C3
220  LLLLLLLLLLLLX L       L          UUUUUUUU
230  0             L       L          5A
240  ZLLLLLLLLLLLL L       L          UUUUUUUU
250  1             L       L          C3
260  XLLLLLLLLLLLH L       L          UUUUUUUU
270  ZZZZZZZZZZZZZ H       L          ZZZZZZZZ
280  0             L       L          5A
