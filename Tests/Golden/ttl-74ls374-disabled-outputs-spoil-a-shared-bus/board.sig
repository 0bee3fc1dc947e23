# A disabled chip drives U, so the other one is never alone, though it gives its word. The 74x574 is the chip for a bus.
time clk_a _OE_a clk_b _OE_b D  ==(dT)=> open     closed   r.a.Q    r.b.Q
0    L     H     L     H     00 28       UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
100  H     H     L     H     A5 28       UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
200  L     H     H     H     3C 28       UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
300  L     L     L     H     00 28       UUUUUUUU UUUUUUUU A5       UUUUUUUU
400  L     H     L     L     00 28       UUUUUUUU UUUUUUUU UUUUUUUU 3C
500  L     L     L     L     00 28       UUUUUUUU UUUUUUUU A5       3C
