time  RDY => cpu.A            cpu.R/W cpu.SYNC cpu._VP cpu.PHI1 cpu.PHI2
# Nothing but the clock outputs before the first falling flank
400   H      UUUUUUUUUUUUUUUU U       U        U       H        L
499   H      UUUUUUUUUUUUUUUU U       U        U       H        L
500   H      UUUUUUUUUUUUUUUU U       U        U       L        H
999   H      UUUUUUUUUUUUUUUU U       U        U       L        H
1000  H      UUUUUUUUUUUUUUUU U       U        U       H        L
1029  H      UUUUUUUUUUUUUUUU U       U        U       H        L
1030  H      0000             H       L        H       H        L
# The rising flank changes nothing but the clock outputs
1499  H      0000             H       L        H       H        L
1500  H      0000             H       L        H       L        H
1510  H      0000             H       L        H       L        H
1530  H      0000             H       L        H       L        H
1999  H      0000             H       L        H       L        H
# The next cycle
2000  H      0000             H       L        H       H        L
2009  H      0000             H       L        H       H        L
2010  H      UUUUUUUUUUUUUUUU U       U        U       H        L
2029  H      UUUUUUUUUUUUUUUU U       U        U       H        L
2030  H      0100             H       L        H       H        L
# The vector
5009  H      01FE             H       L        H       H        L
5010  H      UUUUUUUUUUUUUUUU U       U        U       H        L
5029  H      UUUUUUUUUUUUUUUU U       U        U       H        L
5030  H      FFFC             H       L        L       H        L
5999  H      FFFC             H       L        L       L        H
6000  H      FFFC             H       L        L       H        L
6009  H      FFFC             H       L        L       H        L
6010  H      UUUUUUUUUUUUUUUU U       U        U       H        L
6029  H      UUUUUUUUUUUUUUUU U       U        U       H        L
6030  H      FFFD             H       L        H       H        L
# The first opcode
7009  H      FFFD             H       L        H       H        L
7010  H      UUUUUUUUUUUUUUUU U       U        U       H        L
7029  H      UUUUUUUUUUUUUUUU U       U        U       H        L
7030  H      EAEA             H       H        H       H        L
8009  H      EAEA             H       H        H       H        L
8010  H      UUUUUUUUUUUUUUUU U       U        U       H        L
8029  H      UUUUUUUUUUUUUUUU U       U        U       H        L
8030  H      EAEB             H       L        H       H        L
# The outputs of a cycle that RDY repeats are undefined for a while too
8500  L      EAEB             H       L        H       L        H
9009  L      EAEB             H       L        H       H        L
9010  L      UUUUUUUUUUUUUUUU U       U        U       H        L
9029  L      UUUUUUUUUUUUUUUU U       U        U       H        L
9030  L      EAEB             H       L        H       H        L
9500  H      EAEB             H       L        H       L        H
10030 H      EAEB             H       H        H       H        L
