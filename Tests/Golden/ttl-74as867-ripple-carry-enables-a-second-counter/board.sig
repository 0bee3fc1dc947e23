time S1 S0 CLK high low ==(dT)=> QH       QL       _carry
0    L  L  L   00   00  33       UUUUUUUU UUUUUUUU U
# both are cleared, the high one as soon as the low one's carry is known
100  L  L  L   00   FE  33       00       00       H
200  H  L  L   00   FE  33       00       00       H
300  H  L  H   00   FE  33       00       FE       H
400  H  H  L   FF   FE  33       00       FE       H
500  H  H  H   FF   FE  33       00       FF       H
600  H  H  L   FF   FE  33       00       FF       H
# the low one overflows
700  H  H  H   FF   FE  33       01       00       H
800  H  H  L   FF   FE  33       01       00       H
900  H  H  H   FF   FE  33       01       01       H
# and back; the carry of the high one doesn't ask for the low one's
1000 L  H  L   FF   FE  33       01       01       H
1100 L  H  H   FF   FE  33       01       00       H
1200 L  H  L   FF   FE  33       01       00       H
1300 L  H  H   FF   FE  33       00       FF       L
1400 H  L  L   FF   FE  33       00       FF       H
# both overflow
1500 H  L  H   FF   FE  33       FF       FE       H
1600 H  H  L   FF   FE  33       FF       FE       L
1700 H  H  H   FF   FE  33       FF       FF       L
1800 H  H  L   FF   FE  33       FF       FF       L
1900 H  H  H   FF   FE  33       00       00       H
