# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _IRQ => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H       0000  H       EA    L        H
550  EA   H       0100  H       EA    L        H
750  EA   H       01FF  H       EA    L        H
950  EA   H       01FE  H       EA    L        H
1150 00   H       FFFC  H       00    L        L
1350 E0   H       FFFD  H       E0    L        H
# WAI takes three cycles
1550 CB   H       E000  H       CB    H        H
1750 EA   H       E001  H       EA    L        H
1950 EA   H       E001  H       EA    L        H
2150 EA   H       E001  H       EA    H        H
2350 EA   H       E002  H       EA    L        H
# the first flank with _IRQ low is spent on it, masked as it is
2550 EA   L       E002  H       EA    H        H
2750 EA   L       E002  H       EA    H        H
2950 EA   L       E003  H       EA    L        H
3150 EA   H       E003  H       EA    H        H
3350 EA   H       E004  H       EA    L        H
# the second is not
3550 EA   L       E004  H       EA    H        H
3750 EA   L       E005  H       EA    L        H
# WAI with _IRQ low has nothing to wait for
3950 CB   L       E005  H       CB    H        H
4150 EA   H       E006  H       EA    L        H
4350 EA   H       E006  H       EA    L        H
4550 EA   L       E006  H       EA    H        H
4750 EA   H       E007  H       EA    L        H
4950 EA   H       E007  H       EA    H        H
# WAI, and one flank spent in the midst of an instruction
5150 EA   H       E008  H       EA    L        H
5350 CB   H       E008  H       CB    H        H
5550 EA   H       E009  H       EA    L        H
5750 EA   H       E009  H       EA    L        H
5950 A9   H       E009  H       A9    H        H
6150 5A   L       E00A  H       5A    L        H
6350 5A   L       E00A  H       5A    L        H
6550 EA   L       E00B  H       EA    H        H
