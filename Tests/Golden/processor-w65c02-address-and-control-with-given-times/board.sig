time RDY => cpu.A            cpu.R/W cpu.SYNC cpu._VP cpu.PHI1 cpu.PHI2
5004 H      01FE             H       L        H       H        L
5005 H      UUUUUUUUUUUUUUUU U       U        U       H        L
5099 H      UUUUUUUUUUUUUUUU U       U        U       H        L
5100 H      FFFC             H       L        L       H        L
6004 H      FFFC             H       L        L       H        L
6005 H      UUUUUUUUUUUUUUUU U       U        U       H        L
6099 H      UUUUUUUUUUUUUUUU U       U        U       H        L
6100 H      FFFD             H       L        H       H        L
7004 H      FFFD             H       L        H       H        L
7005 H      UUUUUUUUUUUUUUUU U       U        U       H        L
7099 H      UUUUUUUUUUUUUUUU U       U        U       H        L
7100 H      EAEA             H       H        H       H        L
