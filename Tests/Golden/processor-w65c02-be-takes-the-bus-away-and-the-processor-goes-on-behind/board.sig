time  BE => cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP
0     H     UUUUUUUUUUUUUUUU U       EA       U        U
# BE low during the vector: the bus floats 25 ns later, SYNC and _VP go on
5030  H     FFFC             H       EA       L        L
5200  L     FFFC             H       EA       L        L
5224  L     FFFC             H       EA       L        L
5225  L     ZZZZZZZZZZZZZZZZ Z       EA       L        L
5530  L     ZZZZZZZZZZZZZZZZ Z       EA       L        L
6009  L     ZZZZZZZZZZZZZZZZ Z       EA       L        L
6010  L     ZZZZZZZZZZZZZZZZ Z       EA       U        U
6029  L     ZZZZZZZZZZZZZZZZ Z       EA       U        U
6030  L     ZZZZZZZZZZZZZZZZ Z       EA       L        H
7009  L     ZZZZZZZZZZZZZZZZ Z       EA       L        H
7010  L     ZZZZZZZZZZZZZZZZ Z       EA       U        U
7030  L     ZZZZZZZZZZZZZZZZ Z       EA       H        H
# BE high: the bus is where the processor has got to
7200  H     ZZZZZZZZZZZZZZZZ Z       EA       H        H
7224  H     ZZZZZZZZZZZZZZZZ Z       EA       H        H
7225  H     EAEA             H       EA       H        H
8009  H     EAEA             H       EA       H        H
8010  H     UUUUUUUUUUUUUUUU U       EA       U        U
8030  H     EAEB             H       EA       L        H
# BE undefined: so is the bus, and what is read keeps the last byte
8200  U     EAEB             H       EA       L        H
8224  U     EAEB             H       EA       L        H
8225  U     UUUUUUUUUUUUUUUU U       UUUUUUUU L        H
9030  U     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
10010 U     UUUUUUUUUUUUUUUU U       UUUUUUUU U        U
10030 U     UUUUUUUUUUUUUUUU U       UUUUUUUU L        H
11030 U     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
11200 H     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
11224 H     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
11225 H     EAEC             H       EA       H        H
# BE floating counts as undefined
12200 Z     EAED             H       EA       L        H
12224 Z     EAED             H       EA       L        H
12225 Z     UUUUUUUUUUUUUUUU U       UUUUUUUU L        H
# and from there low
13200 L     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
13224 L     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
13225 L     ZZZZZZZZZZZZZZZZ Z       EA       H        H
# BE low for 5 ns: as long, but later
13300 H     ZZZZZZZZZZZZZZZZ Z       EA       H        H
13325 H     EAED             H       EA       H        H
13700 L     EAED             H       EA       H        H
13705 H     EAED             H       EA       H        H
13724 H     EAED             H       EA       H        H
13725 H     ZZZZZZZZZZZZZZZZ Z       EA       H        H
13729 H     ZZZZZZZZZZZZZZZZ Z       EA       H        H
13730 H     EAED             H       EA       H        H
14030 H     EAEE             H       EA       L        H
