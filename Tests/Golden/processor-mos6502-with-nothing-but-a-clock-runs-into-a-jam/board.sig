time  idle.RDY idle.PHI0 => idle.A           idle._R/W idle.PHI2 idle.D   clocked.A        clocked._R/W clocked.SYNC clocked.PHI1 clocked.D
# floating data are the last byte: P of the reset sequence, then 22, which jams
250   U        U            UUUUUUUUUUUUUUUU U         U         UUUUUUUU UUUUUUUUUUUUUUUU U            U            L            UUUUUUUU
600   L        U            UUUUUUUUUUUUUUUU U         U         UUUUUUUU 0000             H            L            H            UUUUUUUU
# a clock that floats, or none: idle does nothing
1600  H        Z            UUUUUUUUUUUUUUUU U         U         UUUUUUUU 0100             H            L            H            UUUUUUUU
2600  U        U            UUUUUUUUUUUUUUUU U         U         UUUUUUUU 01FF             H            L            H            UUUUUUUU
3600  Z        Z            UUUUUUUUUUUUUUUU U         U         UUUUUUUU 01FE             H            L            H            UUUUUUUU
4600  L        H            UUUUUUUUUUUUUUUU U         H         UUUUUUUU FFFC             H            L            H            UUUUUUUU
5600  H        H            UUUUUUUUUUUUUUUU U         H         UUUUUUUU FFFD             H            L            H            UUUUUUUU
6600  L        U            UUUUUUUUUUUUUUUU U         U         UUUUUUUU 2222             H            H            H            UUUUUUUU
7600  H        Z            UUUUUUUUUUUUUUUU U         U         UUUUUUUU 2223             H            L            H            UUUUUUUU
8600  L        L            UUUUUUUUUUUUUUUU U         L         UUUUUUUU FFFF             H            L            H            UUUUUUUU
9600  H        Z            UUUUUUUUUUUUUUUU U         U         UUUUUUUU FFFF             H            L            H            UUUUUUUU
10600 L        L            UUUUUUUUUUUUUUUU U         L         UUUUUUUU FFFF             H            L            H            UUUUUUUU
