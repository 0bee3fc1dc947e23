time p.byte   p.hi p.lo => p.view   p.turned p.bit
0    A5       ZZZZ ZZZZ    A5       A5       L
10   ZZZZZZZZ 3    C       3C       3C       L
20   ZZZZLHLH E    ZZZZ    E5       A7       H
30   ZZZZZZZZ ZZZZ ZZZZ    ZZZZZZZZ ZZZZZZZZ Z
# Contention on the high half, on all.
40   35       3    ZZZZ    UUUULHLH HLHLUUUU U
50   35       3    5       UUUUUUUU UUUUUUUU U
60   35       ZZZZ ZZZZ    35       AC       L
# An undefined driver.
70   HULZZZZZ ZZZH ZZZZ    HULHZZZZ ZZZZHLUH U
