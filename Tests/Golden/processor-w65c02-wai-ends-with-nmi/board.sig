# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte RDY _NMI => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H   H       0000  H       EA    L        H
550  EA   H   H       0100  H       EA    L        H
750  EA   H   H       01FF  H       EA    L        H
950  EA   H   H       01FE  H       EA    L        H
1150 00   H   H       FFFC  H       00    L        L
1350 E0   H   H       FFFD  H       E0    L        H
1550 CB   H   H       E000  H       CB    H        H
1750 EA   L   H       E001  H       EA    L        H
1950 EA   L   H       E001  H       EA    L        H
# RDY rises when _NMI falls: a flank ends the wait, then the WAI ends
2150 EA   H   L       E001  H       EA    L        H
2350 EA   H   L       E001  H       EA    L        H
2550 EA   H   L       E001  H       EA    L        H
2750 EA   H   L       E001  H       EA    H        H
# two steps of the WAI made the fall old enough
2950 EA   H   L       E001  H       EA    L        H
3150 EA   H   L       01FD  L       E0    L        H
3350 EA   H   L       01FC  L       01    L        H
3550 EA   H   L       01FB  L       26    L        H
3750 00   H   L       FFFA  H       00    L        L
3950 E4   H   L       FFFB  H       E4    L        H
4150 EA   H   L       E400  H       EA    H        H
4350 EA   H   L       E401  H       EA    L        H
4550 EA   H   L       E401  H       EA    H        H
