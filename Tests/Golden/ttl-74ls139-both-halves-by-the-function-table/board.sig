time E1 A1 E2 A2 ==(dT)=> O1   O2
# both enabled, on unlike addresses
0    L  LL L  HH 38       HHHL LHHH
100  L  LH L  HL 38       HHLH HLHH
200  L  HL L  LH 38       HLHH HHLH
300  L  HH L  LL 38       LHHH HHHL
400  L  LL L  LH 38       HHHL HHLH
500  L  LH L  HL 38       HHLH HLHH
600  L  HL L  HH 38       HLHH LHHH
700  L  HH L  LL 38       LHHH HHHL
# one enabled
800  L  LL H  LL 38       HHHL HHHH
900  L  LH H  LH 38       HHLH HHHH
1000 L  HL H  HL 38       HLHH HHHH
1100 L  HH H  HH 38       LHHH HHHH
1200 H  LL L  LL 38       HHHH HHHL
1300 H  LH L  LH 38       HHHH HHLH
1400 H  HL L  HL 38       HHHH HLHH
1500 H  HH L  HH 38       HHHH LHHH
1600 H  HH H  LL 38       HHHH HHHH
# undefined and floating enables
1700 U  LH L  HL 38       UUUU HLHH
1800 L  LH U  HL 38       HHLH UUUU
1900 U  LL H  HL 38       UUUU HHHH
2000 H  LL U  HH 38       HHHH UUUU
2100 L  LL L  HH 38       HHHL LHHH
2200 Z  LH L  HL 38       UUUU HLHH
2300 L  LH Z  HL 38       HHLH UUUU
2400 Z  LL H  HL 38       UUUU HHHH
2500 H  LL Z  HH 38       HHHH UUUU
2600 L  LL L  HH 38       HHHL LHHH
# undefined and floating address bits of an enabled half
2700 L  UL L  HH 38       UUUU LHHH
2800 L  LL L  UL 38       HHHL UUUU
2900 L  LU L  LH 38       UUUU HHLH
3000 L  HL L  LU 38       HLHH UUUU
3100 L  UH L  HH 38       UUUU LHHH
3200 L  LL L  UH 38       HHHL UUUU
3300 L  HU L  LH 38       UUUU HHLH
3400 L  HL L  HU 38       HLHH UUUU
3500 L  UU L  HH 38       UUUU LHHH
3600 L  LL L  UU 38       HHHL UUUU
3700 L  ZL L  LH 38       UUUU HHLH
3800 L  HL L  ZL 38       HLHH UUUU
3900 L  LZ L  HH 38       UUUU LHHH
4000 L  LL L  LZ 38       HHHL UUUU
4100 L  ZH L  LH 38       UUUU HHLH
4200 L  HL L  ZH 38       HLHH UUUU
4300 L  HZ L  HH 38       UUUU LHHH
4400 L  LL L  HZ 38       HHHL UUUU
4500 L  ZZ L  LH 38       UUUU HHLH
4600 L  HL L  ZZ 38       HLHH UUUU
4700 L  UZ L  HH 38       UUUU LHHH
4800 L  LL L  UZ 38       HHHL UUUU
# they do not matter while the half is off
4900 H  UL H  LZ 38       HHHH HHHH
5000 H  ZU L  HL 38       HHHH HLHH
5100 L  LH H  UU 38       HHLH HHHH
