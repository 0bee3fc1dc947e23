time RDY => cpu.A cpu.R/W cpu.SYNC cpu._VP cpu.PHI1 cpu.PHI2
5019 H      01FE  H       L        H       H        L
5020 H      FFFC  H       L        L       H        L
5021 H      FFFC  H       L        L       H        L
6019 H      FFFC  H       L        L       H        L
6020 H      FFFD  H       L        H       H        L
6021 H      FFFD  H       L        H       H        L
7019 H      FFFD  H       L        H       H        L
7020 H      EAEA  H       H        H       H        L
7021 H      EAEA  H       H        H       H        L
