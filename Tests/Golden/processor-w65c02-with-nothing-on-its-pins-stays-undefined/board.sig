time x => bare.A           bare.R/W bare.D   bare.SYNC bare._VP bare.PHI1 bare.PHI2 cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP cpu.PHI1 cpu.PHI2
150  H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U       L        H
199  H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U       L        H
200  H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U       H        L
229  H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U       H        L
230  H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ L        H       H        L
1020 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U       H        L
1030 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ L        L       H        L
1150 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ L        L       L        H
1350 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ L        H       L        H
1550 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ H        H       L        H
1750 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ L        H       L        H
1950 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ H        H       L        H
2150 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ L        H       L        H
2350 H    UUUUUUUUUUUUUUUU U        ZZZZZZZZ U         U        U         U         UUUUUUUUUUUUUUUU U       ZZZZZZZZ H        H       L        H
