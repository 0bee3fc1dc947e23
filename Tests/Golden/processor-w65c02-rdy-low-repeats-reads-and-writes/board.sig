# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte RDY _g => cpu.A            cpu.R/W cpu.D    cpu.SYNC cpu._VP
# the reset sequence
350  EA   H   L     0000             H       EA       L        H
550  EA   H   L     0100             H       EA       L        H
750  EA   H   L     01FF             H       EA       L        H
950  EA   H   L     01FE             H       EA       L        H
1150 00   H   L     FFFC             H       00       L        L
1350 E0   H   L     FFFD             H       E0       L        H
# BRK; RDY low at two flanks of the opcode fetch
1550 EA   L   L     E000             H       EA       H        H
1620 EA   L   L     UUUUUUUUUUUUUUUU U       EA       U        U
1750 EA   L   L     E000             H       EA       H        H
1950 00   H   L     E000             H       00       H        H
2150 EA   H   L     E001             H       EA       L        H
# RDY low in a write: it is written again
2350 EA   L   H     01FD             L       E0       L        H
2400 EA   L   H     01FD             L       E0       L        H
2429 EA   L   H     UUUUUUUUUUUUUUUU U       ZZZZZZZZ U        U
2430 EA   L   H     01FD             L       ZZZZZZZZ L        H
2524 EA   L   H     01FD             L       ZZZZZZZZ L        H
2525 EA   L   H     01FD             L       E0       L        H
2550 EA   L   H     01FD             L       E0       L        H
2750 EA   H   H     01FD             L       E0       L        H
2950 EA   H   H     01FC             L       02       L        H
3150 EA   H   H     01FB             L       36       L        H
# the vector is pulled for three cycles; the byte of the last one counts
3350 11   L   L     FFFE             H       11       L        L
3550 22   L   L     FFFE             H       22       L        L
3750 33   H   L     FFFE             H       33       L        L
3950 E3   H   L     FFFF             H       E3       L        H
4150 EA   H   L     E333             H       EA       H        H
