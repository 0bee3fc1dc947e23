time _E bank line ==(dT)=> low  high
0    H  LL   LL   76       HHHH HHHH
100  L  LL   LL   76       HHHL HHHH
200  L  LL   LH   76       HHLH HHHH
300  L  LL   HL   76       HLHH HHHH
400  L  LL   HH   76       LHHH HHHH
500  L  LH   LL   76       HHHH HHHL
600  L  LH   LH   76       HHHH HHLH
700  L  LH   HL   76       HHHH HLHH
800  L  LH   HH   76       HHHH LHHH
# a bank that is not there
900  L  HL   HH   76       HHHH HHHH
# a lost bank may be either, a lost enable too
1000 L  LU   HH   76       UUUU UUUU
1100 Z  LL   HH   76       UUUU UUUU
1200 H  ZZ   HH   76       HHHH HHHH
1300 L  LH   LU   76       HHHH UUUU
