time A   P  _GP Q  _GQ clk _OER RW _OE => bus
# All are off after their own delays.
0    000 00 H   00 H   L   H    H  H      UUUUUUUU
27   000 00 H   00 H   L   H    H  H      UUUUUUUU
28   000 00 H   00 H   L   H    H  H      ZZZZZZZZ
# From the buffer to address 1.
100  001 11 L   00 H   L   H    H  H      ZZZZZZZZ
110  001 11 L   00 H   L   H    H  H      11
120  001 11 L   00 H   L   H    L  H      11
140  001 11 L   00 H   L   H    H  H      11
150  001 11 H   00 H   L   H    H  H      11
160  001 11 H   00 H   L   H    H  H      ZZZZZZZZ
# From the gates to address 2.
200  002 11 H   22 L   L   H    H  H      ZZZZZZZZ
224  002 11 H   22 L   L   H    H  H      ZZZZZZZZ
225  002 11 H   22 L   L   H    H  H      22
240  002 11 H   22 L   L   H    L  H      22
260  002 11 H   22 L   L   H    H  H      22
270  002 11 H   22 H   L   H    H  H      22
294  002 11 H   22 H   L   H    H  H      22
295  002 11 H   22 H   L   H    H  H      ZZZZZZZZ
# From address 2 to the register, and from there to address 3.
400  002 11 H   22 H   L   H    H  L      UUUUUUUU
410  002 11 H   22 H   L   H    H  L      UUUUUUUU
411  002 11 H   22 H   L   H    H  L      22
450  002 11 H   22 H   H   H    H  L      22
500  002 11 H   22 H   H   H    H  H      22
510  002 11 H   22 H   H   H    H  H      ZZZZZZZZ
550  003 11 H   22 H   H   L    H  H      ZZZZZZZZ
577  003 11 H   22 H   H   L    H  H      ZZZZZZZZ
578  003 11 H   22 H   H   L    H  H      22
590  003 11 H   22 H   H   L    L  H      22
610  003 11 H   22 H   H   L    H  H      22
620  003 11 H   22 H   H   H    H  H      22
648  003 11 H   22 H   H   H    H  H      ZZZZZZZZ
# From address 1 to the register while the buffer drives, too: undefined bits.
700  001 11 H   22 H   L   H    H  L      UUUUUUUU
720  001 11 H   22 H   L   H    H  L      11
740  001 FF L   22 H   L   H    H  L      11
750  001 FF L   22 H   L   H    H  L      UUUUUUUU
760  001 FF L   22 H   H   H    H  L      UUUUUUUU
780  001 FF H   22 H   H   H    H  L      UUUUUUUU
790  001 FF H   22 H   H   H    H  L      11
800  001 FF H   22 H   H   H    H  H      11
810  001 FF H   22 H   H   H    H  H      ZZZZZZZZ
850  001 FF H   22 H   H   L    H  H      ZZZZZZZZ
878  001 FF H   22 H   H   L    H  H      UUUUUUUU
900  001 FF H   22 H   H   H    H  H      UUUUUUUU
928  001 FF H   22 H   H   H    H  H      ZZZZZZZZ
# What is in the RAM.
1000 000 FF H   22 H   H   H    H  L      UUUUUUUU
1020 000 FF H   22 H   H   H    H  L      40
1050 001 FF H   22 H   H   H    H  L      40
1070 001 FF H   22 H   H   H    H  L      11
1100 002 FF H   22 H   H   H    H  L      11
1120 002 FF H   22 H   H   H    H  L      22
1150 003 FF H   22 H   H   H    H  L      22
1170 003 FF H   22 H   H   H    H  L      22
1200 004 FF H   22 H   H   H    H  L      22
1220 004 FF H   22 H   H   H    H  L      44
