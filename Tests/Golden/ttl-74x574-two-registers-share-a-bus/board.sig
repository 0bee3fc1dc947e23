time clk_a _OE_a clk_b _OE_b D  ==(dT)=> open     closed
0    L     H     L     H     00 28       ZZZZZZZZ UUUUUUUU
# clocked while disabled, one after the other
100  H     H     L     H     A5 28       ZZZZZZZZ UUUUUUUU
200  L     H     H     H     3C 28       ZZZZZZZZ UUUUUUUU
300  L     L     L     H     00 28       A5       A5
400  L     H     L     H     00 28       ZZZZZZZZ UUUUUUUU
500  L     H     L     L     00 28       3C       3C
# the turn passes in one nanosecond
600  L     L     L     H     00 28       A5       A5
# both at once spoil every bit, also those that agree
700  L     L     L     L     00 28       UUUUUUUU UUUUUUUU
800  H     L     L     L     C3 28       UUUUUUUU UUUUUUUU
900  H     H     L     L     C3 28       3C       3C
1000 L     H     L     L     0F 28       3C       3C
1100 H     H     L     L     0F 28       3C       3C
1200 H     L     L     H     0F 28       0F       0F
1300 H     U     L     H     0F 28       UUUUUUUU UUUUUUUU
1400 H     H     L     H     0F 28       ZZZZZZZZ UUUUUUUU
