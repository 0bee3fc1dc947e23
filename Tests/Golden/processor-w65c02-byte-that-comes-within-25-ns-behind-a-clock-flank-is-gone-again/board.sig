time  byte BE => cpu.A            cpu.D
0     00   H     UUUUUUUUUUUUUUUU 00
5100  00   H     FFFC             00
# 10 ns behind the rising flank: gone 15 ns later, and not read
5510  77   H     FFFC             77
5524  77   H     FFFC             77
5525  77   H     FFFC             00
5999  77   H     FFFC             00
6009  77   H     FFFC             00
6010  77   H     UUUUUUUUUUUUUUUU 77
# 25 ns behind it: in time
6100  77   H     FFFD             77
6525  E1   H     FFFD             E1
6999  E1   H     FFFD             E1
7030  E1   H     E100             E1
# from 9 ns behind it for 1 ns
7509  EA   H     E100             EA
7510  EA   H     E100             E1
7999  EA   H     E100             E1
8010  EA   H     UUUUUUUUUUUUUUUU EA
# behind a falling flank: back with the rising one
9024  A9   H     UUUUUUUUUUUUUUUU A9
9025  A9   H     UUUUUUUUUUUUUUUU EA
9500  A9   H     00EA             EA
9510  A9   H     00EA             A9
# with the bus taken away nothing is handed over
9600  A9   L     00EA             A9
9650  A9   L     ZZZZZZZZZZZZZZZZ A9
10510 5A   L     ZZZZZZZZZZZZZZZZ 5A
10525 5A   L     ZZZZZZZZZZZZZZZZ 5A
10999 5A   L     ZZZZZZZZZZZZZZZZ 5A
