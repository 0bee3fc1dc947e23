time  cpu.D    => A                rw sync
0     EA          UUUUUUUUUUUUUUUU U  U
600   EA          0000             H  L
1600  EA          0100             H  L
2600  EA          01FF             H  L
3600  EA          01FE             H  L
4600  00          FFFC             H  L
5600  30          FFFD             H  L
# JMP 1234
6600  4C          3000             H  H
7600  34          3001             H  L
8600  12          3002             H  L
# JMP, the low byte floating: it is the opcode
9600  4C          1234             H  H
10600 ZZZZZZZZ    1235             H  L
11600 56          1236             H  L
# PHP: what the file holds there shows, the write does not
12600 08          564C             H  H
13600 EA          564D             H  L
14600 UUUUUUUU    01FD             L  L
15600 EA          564D             H  H
16600 EA          564E             H  L
