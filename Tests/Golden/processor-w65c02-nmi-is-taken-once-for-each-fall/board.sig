# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _NMI => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H       0000  H       EA    L        H
550  EA   H       0100  H       EA    L        H
750  EA   H       01FF  H       EA    L        H
950  EA   H       01FE  H       EA    L        H
1150 00   H       FFFC  H       00    L        L
1350 E0   H       FFFD  H       E0    L        H
1550 EA   H       E000  H       EA    H        H
# _NMI falls and stays low: one interrupt
1750 EA   L       E001  H       EA    L        H
1950 EA   L       E001  H       EA    H        H
2150 EA   L       E002  H       EA    L        H
2350 EA   L       E002  H       EA    H        H
2550 EA   L       E002  H       EA    L        H
2750 EA   L       01FD  L       E0    L        H
2950 EA   L       01FC  L       02    L        H
3150 EA   L       01FB  L       26    L        H
3350 34   L       FFFA  H       34    L        L
3550 E2   L       FFFB  H       E2    L        H
3750 EA   L       E234  H       EA    H        H
3950 EA   L       E235  H       EA    L        H
4150 EA   L       E235  H       EA    H        H
4350 EA   H       E236  H       EA    L        H
# it falls again
4550 EA   L       E236  H       EA    H        H
4750 EA   L       E237  H       EA    L        H
4950 EA   L       E237  H       EA    H        H
5150 EA   L       E237  H       EA    L        H
5350 EA   L       01FA  L       E2    L        H
5550 EA   L       01F9  L       37    L        H
5750 EA   L       01F8  L       26    L        H
5950 35   L       FFFA  H       35    L        L
6150 E2   L       FFFB  H       E2    L        H
6350 EA   L       E235  H       EA    H        H
