# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _SO => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H      0000  H       EA    L        H
550  EA   H      0100  H       EA    L        H
750  EA   H      01FF  H       EA    L        H
950  EA   H      01FE  H       EA    L        H
1150 00   H      FFFC  H       00    L        L
1350 E0   H      FFFD  H       E0    L        H
# PHP without V
1550 08   H      E000  H       08    H        H
1750 EA   H      E001  H       EA    L        H
1950 EA   H      01FD  L       36    L        H
# _SO falls: with V
2150 08   L      E001  H       08    H        H
2350 EA   L      E002  H       EA    L        H
2550 EA   L      01FC  L       76    L        H
# CLV; _SO is still low, and that does nothing
2750 B8   L      E002  H       B8    H        H
2950 EA   L      E003  H       EA    L        H
3150 08   L      E003  H       08    H        H
3350 EA   L      E004  H       EA    L        H
3550 EA   H      01FB  L       36    L        H
# it falls again
3750 08   L      E004  H       08    H        H
3950 EA   L      E005  H       EA    L        H
4150 EA   L      01FA  L       76    L        H
# CLV, and a fall from U
4350 B8   U      E005  H       B8    H        H
4550 EA   U      E006  H       EA    L        H
4750 08   L      E006  H       08    H        H
4950 EA   L      E007  H       EA    L        H
5150 EA   L      01F9  L       76    L        H
# CLV; neither U nor Z sets V
5350 B8   L      E007  H       B8    H        H
5550 EA   L      E008  H       EA    L        H
5750 08   U      E008  H       08    H        H
5950 EA   Z      E009  H       EA    L        H
6150 EA   Z      01F8  L       36    L        H
6350 EA   H      E009  H       EA    H        H
