time u.E1 u.A1 u.E2 u.A2 ==(dT)=> u.O1 u.O2
# never enabled nor disabled: nothing is written
0    Z    LH   X    HL   38       UUUU UUUU
100  L    LH   H    HL   38       HHLH HHHH
# Z and X on the enable keep what stands, whatever the address does
200  Z    LH   X    HL   38       HHLH HHHH
300  Z    HH   X    LL   38       HHLH HHHH
400  X    UL   Z    LU   38       HHLH HHHH
500  H    HH   L    HH   38       HHHH LHHH
600  X    LL   Z    LL   38       HHHH LHHH
700  L    LL   U    LL   38       HHHL UUUU
800  Z    HL   Z    HL   38       HHHL UUUU
# a U in the address counts before a Z; a half that is off never looks
900  L    UZ   H    ZX   38       UUUU HHHH
1000 H    XX   L    XU   38       HHHH UUUU
1100 U    ZZ   L    HL   38       UUUU HLHH
