time RDY => cpu.A            cpu.R/W
5000 H      FFFC             H
5009 H      FFFC             H
5010 H      UUUUUUUUUUUUUUUU U
5900 H      UUUUUUUUUUUUUUUU U
6000 H      FFFD             H
6009 H      FFFD             H
6010 H      UUUUUUUUUUUUUUUU U
6900 H      UUUUUUUUUUUUUUUU U
