A = 05
_CE = L
time D  RW _OE _G => qL       qR
# Pulses of 1, 7, 14 and 15 ns: no word is lost on them, and nothing is stored.
0    FF H  H   H     UUUUUUUU UUUUUUUU
50   FF H  H   L     FF       FF
100  FF L  H   L     FF       FF
101  FF H  H   L     FF       FF
200  FF L  H   L     FF       FF
207  FF H  H   L     FF       FF
300  FF L  H   L     FF       FF
314  FF H  H   L     FF       FF
400  FF L  H   L     FF       FF
415  FF H  H   L     FF       FF
500  FF H  H   H     ZZZZZZZZ ZZZZZZZZ
510  FF H  L   H     UUUUUUUU UUUUUUUU
521  FF H  L   H     45       45
550  FF H  H   H     45       45
560  FF H  H   H     ZZZZZZZZ ZZZZZZZZ
# Many short pulses make no long one.
600  FF H  H   L     FF       FF
610  FF L  H   L     FF       FF
618  FF H  H   L     FF       FF
620  FF L  H   L     FF       FF
628  FF H  H   L     FF       FF
630  FF L  H   L     FF       FF
638  FF H  H   L     FF       FF
640  FF L  H   L     FF       FF
648  FF H  H   L     FF       FF
660  FF H  H   H     ZZZZZZZZ ZZZZZZZZ
670  FF H  L   H     UUUUUUUU UUUUUUUU
681  FF H  L   H     45       45
700  FF H  H   H     45       45
710  FF H  H   H     ZZZZZZZZ ZZZZZZZZ
# 16 ns do.
800  FF L  H   L     FF       FF
816  FF H  H   L     FF       FF
820  FF H  H   H     ZZZZZZZZ ZZZZZZZZ
900  FF H  L   H     UUUUUUUU UUUUUUUU
911  FF H  L   H     FF       FF
