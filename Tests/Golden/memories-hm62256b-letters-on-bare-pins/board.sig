time ram.A           ram.Din  ram._WE ram._OE ram._CS => ram.Dout
# a Z or X on the control pins counts as neither high nor low
0    0               5A       L       H       L          ZZZZZZZZ
10   0               5A       H       L       L          5A
20   0               FF       Z       L       L          UUUUUUUU
30   0               FF       H       L       L          5A
40   0               FE       X       L       L          UUUUUUUU
50   0               FE       H       L       L          5A
60   0               FD       L       L       Z          UUUUUUUU
70   0               FD       H       L       L          5A
80   0               FC       L       L       X          UUUUUUUU
90   0               FC       H       L       L          5A
100  0               FC       H       H       L          ZZZZZZZZ
110  0               FC       H       Z       L          UUUUUUUU
120  0               FC       H       H       L          ZZZZZZZZ
130  0               FC       H       X       L          UUUUUUUU
# while it writes, _OE only spoils the output
140  0               3C       L       L       L          ZZZZZZZZ
150  0               3D       L       Z       L          UUUUUUUU
160  0               3D       H       L       L          3D
170  0               3E       L       X       L          UUUUUUUU
180  0               3E       H       L       L          3E
# data is stored letter by letter
190  0               HLUZXHLZ L       H       L          ZZZZZZZZ
200  0               00       H       L       L          HLUZXHLZ
210  1               XXXXXXXX L       H       L          ZZZZZZZZ
220  1               00       H       L       L          XXXXXXXX
230  2               ZZZZZZZZ L       L       L          ZZZZZZZZ
240  0               00       H       L       L          HLUZXHLZ
250  2               00       H       L       L          ZZZZZZZZ
# the address
260  0               00       H       L       L          HLUZXHLZ
270  LLLLLLLLLLLLLLZ 00       H       L       L          UUUUUUUU
280  0               00       H       L       L          HLUZXHLZ
290  XLLLLLLLLLLLLLL 00       H       L       L          UUUUUUUU
300  XLLLLLLLLLLLLLL 00       L       L       L          ZZZZZZZZ
310  LLLLLLLLLLLLLLZ 00       L       U       L          UUUUUUUU
320  0               00       H       L       L          HLUZXHLZ
330  1               00       H       L       L          XXXXXXXX
