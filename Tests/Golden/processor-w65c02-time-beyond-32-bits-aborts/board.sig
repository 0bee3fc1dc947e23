time RDY => cpu.A
0    H      UUUUUUUUUUUUUUUU
