time  BE => cpu.A            cpu.R/W
0     H     UUUUUUUUUUUUUUUU U
# BE falls 25 ns before a flank of the clock: the bus floats from the flank on
7974  H     EAEA             H
7975  L     EAEA             H
7999  L     EAEA             H
8000  L     ZZZZZZZZZZZZZZZZ Z
8010  L     ZZZZZZZZZZZZZZZZ Z
8030  L     ZZZZZZZZZZZZZZZZ Z
# back
8600  H     ZZZZZZZZZZZZZZZZ Z
8625  H     EAEB             H
# 24 ns before: the flank still hands the new address over
8976  L     EAEB             H
9000  L     EAEB             H
9001  L     ZZZZZZZZZZZZZZZZ Z
9009  L     ZZZZZZZZZZZZZZZZ Z
9010  L     UUUUUUUUUUUUUUUU U
9029  L     UUUUUUUUUUUUUUUU U
9030  L     EAEB             H
9999  L     EAEB             H
# where it stays, until BE comes and goes
10030 L     EAEB             H
10600 H     EAEB             H
10625 H     EAEC             H
10700 L     EAEC             H
10725 L     ZZZZZZZZZZZZZZZZ Z
10800 H     ZZZZZZZZZZZZZZZZ Z
10825 H     EAEC             H
# 4 ns behind a flank: floating for 1 ns
11004 L     EAEC             H
11010 L     UUUUUUUUUUUUUUUU U
11028 L     UUUUUUUUUUUUUUUU U
11029 L     ZZZZZZZZZZZZZZZZ Z
11030 L     EAEC             H
11600 H     EAEC             H
11650 H     EAEC             H
# 5 ns behind a flank: floating from the start
12005 L     EAEC             H
12010 L     UUUUUUUUUUUUUUUU U
12029 L     UUUUUUUUUUUUUUUU U
12030 L     ZZZZZZZZZZZZZZZZ Z
12400 L     ZZZZZZZZZZZZZZZZ Z
12700 H     ZZZZZZZZZZZZZZZZ Z
12725 H     EAED             H
# 10 ns before a rising flank: as with a falling one
13490 L     EAED             H
13514 L     EAED             H
13515 L     ZZZZZZZZZZZZZZZZ Z
13529 L     ZZZZZZZZZZZZZZZZ Z
13530 L     EAED             H
