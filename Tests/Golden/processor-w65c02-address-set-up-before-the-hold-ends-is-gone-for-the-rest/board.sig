time RDY => cpu.A            cpu.R/W cpu.SYNC cpu._VP cpu.PHI1 cpu.PHI2
5007 H      UUUUUUUUUUUUUUUU U       U        U       H        L
5008 H      FFFC             H       L        L       H        L
5019 H      FFFC             H       L        L       H        L
5020 H      UUUUUUUUUUUUUUUU U       U        U       H        L
5600 H      UUUUUUUUUUUUUUUU U       U        U       L        H
6007 H      UUUUUUUUUUUUUUUU U       U        U       H        L
6008 H      FFFD             H       L        H       H        L
6019 H      FFFD             H       L        H       H        L
6020 H      UUUUUUUUUUUUUUUU U       U        U       H        L
6600 H      UUUUUUUUUUUUUUUU U       U        U       L        H
7007 H      UUUUUUUUUUUUUUUU U       U        U       H        L
7008 H      EAEA             H       H        H       H        L
7019 H      EAEA             H       H        H       H        L
7020 H      UUUUUUUUUUUUUUUU U       U        U       H        L
7600 H      UUUUUUUUUUUUUUUU U       U        U       L        H
