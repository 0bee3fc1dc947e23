# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _IRQ _NMI RDY => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   U    U    U      0000  H       EA    L        H
550  EA   U    U    U      0100  H       EA    L        H
750  EA   U    U    U      01FF  H       EA    L        H
950  EA   U    U    U      01FE  H       EA    L        H
1150 00   U    U    U      FFFC  H       00    L        L
1350 E0   U    U    U      FFFD  H       E0    L        H
# CLI
1550 58   U    U    U      E000  H       58    H        H
1750 EA   U    U    U      E001  H       EA    L        H
1950 EA   U    U    U      E001  H       EA    H        H
2150 EA   U    U    U      E002  H       EA    L        H
2350 EA   U    U    U      E002  H       EA    H        H
2550 EA   U    U    U      E003  H       EA    L        H
2750 EA   Z    Z    Z      E003  H       EA    H        H
2950 EA   Z    Z    Z      E004  H       EA    L        H
3150 EA   Z    Z    Z      E004  H       EA    H        H
3350 EA   Z    Z    Z      E005  H       EA    L        H
3550 EA   Z    Z    Z      E005  H       EA    H        H
# RDY low
3750 EA   Z    Z    L      E006  H       EA    L        H
3950 EA   Z    Z    U      E006  H       EA    L        H
# _IRQ low at one flank
4150 EA   L    Z    U      E006  H       EA    H        H
4350 EA   U    Z    U      E007  H       EA    L        H
4550 EA   U    Z    U      E007  H       EA    H        H
4750 EA   U    Z    U      E007  H       EA    L        H
4950 EA   U    Z    U      01FD  L       E0    L        H
5150 EA   U    Z    U      01FC  L       07    L        H
5350 EA   U    Z    U      01FB  L       22    L        H
5550 00   U    Z    U      FFFE  H       00    L        L
5750 E0   U    Z    U      FFFF  H       E0    L        H
# _NMI falls from U
5950 EA   U    L    U      E000  H       EA    H        H
6150 EA   U    Z    U      E001  H       EA    L        H
6350 EA   U    Z    U      E001  H       EA    H        H
6550 EA   U    Z    U      E001  H       EA    L        H
6750 EA   U    Z    U      01FA  L       E0    L        H
6950 EA   U    Z    U      01F9  L       01    L        H
7150 EA   U    Z    U      01F8  L       26    L        H
7350 00   U    Z    U      FFFA  H       00    L        L
