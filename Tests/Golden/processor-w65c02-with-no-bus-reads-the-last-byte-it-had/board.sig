time BE => cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP
0    H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U
# the reset sequence pushes nothing, but has the status in its hands: $22
350  H     0000             H       ZZZZZZZZ L        H
550  H     0100             H       ZZZZZZZZ L        H
750  H     01FF             H       ZZZZZZZZ L        H
950  H     01FE             H       ZZZZZZZZ L        H
1150 H     FFFC             H       ZZZZZZZZ L        L
1350 H     FFFD             H       ZZZZZZZZ L        H
# $22 is a NOP of two bytes
1550 H     2222             H       ZZZZZZZZ H        H
1750 H     2223             H       ZZZZZZZZ L        H
1950 H     2224             H       ZZZZZZZZ H        H
2150 H     2225             H       ZZZZZZZZ L        H
2350 H     2226             H       ZZZZZZZZ H        H
