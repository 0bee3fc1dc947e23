# An adder takes 24 ns, two in a row 48; the comparator 22 ns more: each line is looked at 70 ns later. `_right` is the
# comparator's answer, so the column `expected` checks the sum a second time, by hardware.

time  a   b   cin  expected  _check  ==(dT)=>  sum       cout  _right

# No carry anywhere, then out of each bit alone.
0     00  00  L    00        L          70     00        L     L
100   55  AA  L    FF        L          70     FF        L     L
200   01  01  L    02        L          70     02        L     L
300   02  02  L    04        L          70     04        L     L
400   04  04  L    08        L          70     08        L     L
500   08  08  L    10        L          70     10        L     L
600   10  10  L    20        L          70     20        L     L
700   20  20  L    40        L          70     40        L     L
800   40  40  L    80        L          70     80        L     L
900   80  80  L    00        L          70     00        H     L

# The carry input, alone and through every bit.
1000  00  00  H    01        L          70     01        L     L
1100  0F  00  H    10        L          70     10        L     L
1200  FE  01  H    00        L          70     00        H     L
1300  00  FF  H    00        L          70     00        H     L
1400  FF  FF  H    FF        L          70     FF        H     L

# Carries in all places at once, and into the upper half from one bit of the lower.
1500  FF  01  L    00        L          70     00        H     L
1600  7F  01  L    80        L          70     80        L     L
1700  F8  08  L    00        L          70     00        H     L
1800  5A  A6  L    00        L          70     00        H     L
1900  37  48  H    80        L          70     80        L     L

# The comparator notices a wrong number, and answers high when it isn't asked.
2000  37  48  H    81        L          70     80        L     H
2100  37  48  H    80        H          70     80        L     H

# One undefined bit of a number makes that half of the sum undefined, and its carry and the other half with it.
2200  3U  48  H    80        L          70     UUUUUUUU  U     U
2300  UUUULLLL 48 H 80       L          70     UUUUHLLH  U     U

# In between: the lower half is right after 24 ns; the upper one, which waits for the carry, after 48, and the comparator
# calls what it sees until then wrong.
2400  0F  01  L    10        L          23     UUUUHLLH  U     U
2424  0F  01  L    10        L          23     00        L     H
2448  0F  01  L    10        L          21     10        L     H
2470  0F  01  L    10        L          0      10        L     L
