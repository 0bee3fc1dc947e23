time clk_in _OE_in clk_a _OE_a clk_b _OE_b D  ==(dT)=> bus
0    L      H      L     H     L     H     00 28       ZZZZZZZZ
100  H      L      L     H     L     H     5A 28       5A
# a takes it
200  H      L      H     H     L     H     00 28       5A
300  L      H      L     H     L     H     00 28       ZZZZZZZZ
400  L      H      L     L     L     H     00 28       5A
# b takes it from a
500  L      H      L     L     H     H     00 28       5A
600  H      L      L     H     L     H     C3 28       C3
# a takes the new word, b still has the former
700  H      L      H     H     L     H     00 28       C3
800  H      H      H     H     L     L     00 28       5A
900  H      H      H     L     L     H     00 28       C3
# b clocks in what floats
1000 H      H      H     H     L     H     00 28       ZZZZZZZZ
1100 H      H      H     H     H     H     00 28       ZZZZZZZZ
1200 H      H      H     H     H     L     00 28       UUUUUUUU
1300 H      H      H     L     H     H     00 28       C3
