# old.bin holds E8 E9, here at 8 and 9.
time A Din _WE _OE _CS => Dout
0    9 0A  H   L   L      UUUUUUUU
49   9 0A  H   L   L      UUUUUUUU
50   9 0A  H   L   L      E9
# written at 150; reads that look at 149 and at 150
100  9 0A  L   L   L      E9
101  9 0A  H   L   L      E9
149  9 0B  H   L   L      E9
150  9 0C  H   L   L      ZZZZZZZZ
151  9 0C  H   L   L      E9
198  9 0C  H   L   L      E9
199  9 0C  H   L   L      E9
200  9 0C  H   L   L      0A
# a second write, while another cell is read; 9 is read as it was before
300  9 0D  L   L   L      0A
301  8 0D  H   L   L      0A
311  9 0D  H   L   L      0A
321  8 0D  H   L   L      0A
345  9 0D  H   L   L      0A
350  9 0D  H   L   L      ZZZZZZZZ
351  9 0D  H   L   L      E8
360  9 0D  H   L   L      E8
361  9 0D  H   L   L      0A
371  9 0D  H   L   L      E8
394  9 0D  H   L   L      E8
395  9 0D  H   L   L      0A
# nothing looks again by itself
500  9 0D  H   L   L      0A
501  9 0E  H   L   L      0A
550  9 0E  H   L   L      0A
551  9 0E  H   L   L      0D
