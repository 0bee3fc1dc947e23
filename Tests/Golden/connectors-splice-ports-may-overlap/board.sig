time dx dy _gx _gy ==(dT)=> x    y    all      pair
0    D  6  L   H   10       D    LHZZ ZZHHLHZZ HL
20   6  6  L   H   10       6    HLZZ ZZLHHLZZ LH
40   6  6  H   L   10       ZZLH 6    ZZZZLHHL HL
60   6  B  H   L   10       ZZHL B    ZZZZHLHH LH
# Both: contention on the bits they share.
80   6  B  L   L   10       LHUU UUHH ZZLHUUHH UU
100  E  B  H   H   10       ZZZZ ZZZZ ZZZZZZZZ ZZ
120  E  B  L   H   10       E    HLZZ ZZHHHLZZ LH
