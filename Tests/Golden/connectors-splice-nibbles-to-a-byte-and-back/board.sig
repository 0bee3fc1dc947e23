# From the byte.
time w  h l _gw _gh _gl ==(dT)=> byte     seen     hi   lo
0    A5 3 C L   H   H   10       A5       A5       A    5
20   1E 3 C L   H   H   10       1E       1E       1    E
# From the nibbles, and from one of them: nobody drives the other.
40   1E 3 C H   L   L   10       3C       3C       3    C
60   1E 3 C H   L   H   10       LLHHZZZZ LLHHUUUU 3    ZZZZ
80   1E 3 C H   H   L   10       ZZZZHHLL UUUUHHLL ZZZZ C
100  1E 3 C H   H   H   10       ZZZZZZZZ UUUUUUUU ZZZZ ZZZZ
# From both sides: contention where they meet.
120  1E 1 C L   L   H   10       UUUUHHHL UUUUHHHL UUUU E
140  1E 1 E L   H   L   10       LLLHUUUU LLLHUUUU 1    UUUU
160  1E 1 E L   L   L   10       UUUUUUUU UUUUUUUU UUUU UUUU
180  1E 1 E H   L   L   10       1E       1E       1    E
# The levels follow a driver on either side.
200  1E 7 E H   L   L   10       7E       7E       7    E
220  96 7 E L   H   H   10       96       96       9    6
