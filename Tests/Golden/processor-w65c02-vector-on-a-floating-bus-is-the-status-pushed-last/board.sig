time byte _g => cpu.A cpu.R/W cpu.D    cpu.SYNC cpu._VP
# the reset sequence
350  EA   L     0000  H       EA       L        H
550  EA   L     0100  H       EA       L        H
750  EA   L     01FF  H       EA       L        H
950  EA   L     01FE  H       EA       L        H
1150 00   L     FFFC  H       00       L        L
1350 E0   L     FFFD  H       E0       L        H
# BRK, from which on the bus floats
1550 00   L     E000  H       00       H        H
1750 00   H     E001  H       ZZZZZZZZ L        H
1950 00   H     01FD  L       E0       L        H
2150 00   H     01FC  L       02       L        H
2350 00   H     01FB  L       36       L        H
# the status that was pushed is read as both bytes of the vector, and as the opcode
2550 00   H     FFFE  H       ZZZZZZZZ L        L
2750 00   H     FFFF  H       ZZZZZZZZ L        H
2950 00   H     3636  H       ZZZZZZZZ H        H
# ROL $36,X with X = 0, which reads its operand byte as $36
3150 00   H     3637  H       ZZZZZZZZ L        H
