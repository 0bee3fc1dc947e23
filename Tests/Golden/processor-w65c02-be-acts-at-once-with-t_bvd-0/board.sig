time BE => cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP
0    H     UUUUUUUUUUUUUUUU U       UUUUUUUU U        U
5030 H     FFFC             H       EA       L        L
5199 H     FFFC             H       EA       L        L
5200 L     ZZZZZZZZZZZZZZZZ Z       EA       L        L
7199 L     ZZZZZZZZZZZZZZZZ Z       EA       H        H
7200 H     EAEA             H       EA       H        H
8200 U     UUUUUUUUUUUUUUUU U       UUUUUUUU L        H
9200 H     EAEB             H       EA       H        H
