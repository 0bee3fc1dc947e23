time BE => cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP
0    H     UUUUUUUUUUUUUUUU U       EA       U        U
5030 H     FFFC             H       EA       L        L
5200 L     FFFC             H       EA       L        L
5299 L     FFFC             H       EA       L        L
5300 L     ZZZZZZZZZZZZZZZZ Z       EA       L        L
7200 H     ZZZZZZZZZZZZZZZZ Z       EA       H        H
7299 H     ZZZZZZZZZZZZZZZZ Z       EA       H        H
7300 H     EAEA             H       EA       H        H
8200 U     EAEB             H       EA       L        H
8299 U     EAEB             H       EA       L        H
8300 U     UUUUUUUUUUUUUUUU U       UUUUUUUU L        H
9200 H     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
9299 H     UUUUUUUUUUUUUUUU U       UUUUUUUU H        H
9300 H     EAEB             H       EA       H        H
