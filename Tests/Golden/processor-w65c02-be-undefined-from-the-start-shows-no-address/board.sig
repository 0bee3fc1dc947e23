time  BE => cpu.A            cpu.R/W cpu.D cpu.SYNC cpu._VP
# without BE from the start
900   U     UUUUUUUUUUUUUUUU U       EA    U        U
1030  U     UUUUUUUUUUUUUUUU U       EA    L        H
5030  U     UUUUUUUUUUUUUUUU U       EA    L        L
6030  U     UUUUUUUUUUUUUUUU U       EA    L        H
7030  U     UUUUUUUUUUUUUUUU U       EA    H        H
8030  U     UUUUUUUUUUUUUUUU U       EA    L        H
# then low
8200  L     UUUUUUUUUUUUUUUU U       EA    L        H
8224  L     UUUUUUUUUUUUUUUU U       EA    L        H
8225  L     ZZZZZZZZZZZZZZZZ Z       EA    L        H
9030  L     ZZZZZZZZZZZZZZZZ Z       EA    H        H
# and high
9200  H     ZZZZZZZZZZZZZZZZ Z       EA    H        H
9225  H     EAEB             H       EA    H        H
10030 H     EAEC             H       EA    L        H
