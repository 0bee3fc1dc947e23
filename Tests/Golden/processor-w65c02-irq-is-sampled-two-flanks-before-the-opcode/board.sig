# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _IRQ => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   L       0000  H       EA    L        H
550  EA   L       0100  H       EA    L        H
750  EA   L       01FF  H       EA    L        H
950  EA   L       01FE  H       EA    L        H
1150 00   L       FFFC  H       00    L        L
1350 E0   L       FFFD  H       E0    L        H
# _IRQ was low, but I is set behind a reset: CLI finds nothing
1550 58   H       E000  H       58    H        H
1750 EA   H       E001  H       EA    L        H
# _IRQ low at the flank that loads the NOP: two flanks before the next opcode
1950 EA   L       E001  H       EA    H        H
2150 EA   H       E002  H       EA    L        H
2350 EA   H       E002  H       EA    H        H
# the opcode is thrown away
2550 EA   H       E002  H       EA    L        H
2750 EA   H       01FD  L       E0    L        H
2950 EA   H       01FC  L       02    L        H
3150 EA   H       01FB  L       22    L        H
3350 00   H       FFFE  H       00    L        L
3550 E1   H       FFFF  H       E1    L        H
# RTI
3750 40   H       E100  H       40    H        H
3950 EA   H       E101  H       EA    L        H
4150 EA   H       01FA  H       EA    L        H
4350 22   H       01FB  H       22    L        H
4550 02   H       01FC  H       02    L        H
4750 E0   H       01FD  H       E0    L        H
# _IRQ low one flank before the next opcode: too late, and nothing is kept
4950 EA   H       E002  H       EA    H        H
5150 EA   L       E003  H       EA    L        H
5350 EA   H       E003  H       EA    H        H
5550 EA   H       E004  H       EA    L        H
5750 EA   H       E004  H       EA    H        H
5950 EA   H       E005  H       EA    L        H
6150 EA   H       E005  H       EA    H        H
6350 EA   H       E006  H       EA    L        H
