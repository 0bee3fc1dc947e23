time byte     BE => cpu.A            cpu.D    cpu.SYNC cpu._VP
0    EA       H     UUUUUUUUUUUUUUUU EA       U        U
350  EA       H     0000             EA       L        H
550  EA       H     0100             EA       L        H
750  EA       H     01FF             EA       L        H
950  5C       H     01FE             5C       L        H
1150 HHHHHHHU H     FFFC             HHHHHHHU L        L
1350 80       H     FFFD             80       L        H
1550 EA       H     805C             EA       H        H
# an opcode with an undefined bit
1750 EA       H     805D             EA       L        H
1950 UHHHHHHH H     805D             UHHHHHHH H        H
2150 EA       H     805E             EA       L        H
2350 EA       H     805E             EA       H        H
