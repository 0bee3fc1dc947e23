# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte RDY _IRQ => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H   H       0000  H       EA    L        H
550  EA   H   H       0100  H       EA    L        H
750  EA   H   H       01FF  H       EA    L        H
950  EA   H   H       01FE  H       EA    L        H
1150 00   H   H       FFFC  H       00    L        L
1350 E0   H   H       FFFD  H       E0    L        H
# RDY falls behind the flank that loads the WAI
1550 CB   H   H       E000  H       CB    H        H
1750 EA   L   H       E001  H       EA    L        H
1950 EA   L   H       E001  H       EA    L        H
2150 EA   L   H       E001  H       EA    L        H
2350 EA   L   L       E001  H       EA    L        H
# the interrupt ends the wait, RDY holds on
2550 EA   L   L       E001  H       EA    L        H
2750 EA   L   H       E001  H       EA    L        H
2950 EA   L   H       E001  H       EA    L        H
3150 EA   H   H       E001  H       EA    L        H
# its second step and the next opcode
3350 EA   H   H       E001  H       EA    L        H
3550 EA   H   H       E001  H       EA    H        H
# nothing waits any more
3750 EA   H   H       E002  H       EA    L        H
3950 EA   H   L       E002  H       EA    H        H
4150 EA   H   L       E003  H       EA    L        H
4350 EA   H   L       E003  H       EA    H        H
4550 EA   H   L       E004  H       EA    L        H
