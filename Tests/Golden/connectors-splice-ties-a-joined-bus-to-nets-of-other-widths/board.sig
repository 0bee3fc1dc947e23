# One driver at a time.
time d _gd  w  _gw t _gt ==(dT)=> byte     lo   top
0    5 0    A7 H   H H   10       ZZZZLHLH 5    Z
20   5 F    A7 L   H H   10       A7       7    H
40   5 F    A7 H   H L   10       HZZZZZZZ ZZZZ H
60   5 F    27 L   H H   10       27       7    L
# Two that don't meet.
80   C 0    27 H   L L   10       LZZZHHLL C    L
# Some bits of the low half.
100  C 3    27 H   L H   10       ZZZZHHZZ HHZZ Z
# Contention: on the whole low half, on two bits of it, on the top bit.
120  C 0    A7 L   H H   10       HLHLUUUU UUUU H
140  C HHLL A7 L   H H   10       HLHLLHUU LHUU H
160  C F    A7 L   H L   10       ULHLLHHH 7    U
180  C F    A7 L   H H   10       A7       7    H
# Nobody.
200  C F    A7 H   H H   10       ZZZZZZZZ ZZZZ Z
220  9 0    A7 H   L H   10       ZZZZHLLH 9    Z
# An undefined gate counts as a driver.
240  9 LLUL A7 H   L H   10       ZZZZHLUH HLUH Z
260  9 HHUH A7 L   L H   10       HLHLLHUH LHUH H
280  9 F    A7 L   L H   10       A7       7    H
