# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _IRQ _NMI => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H    H       0000  H       EA    L        H
550  EA   H    H       0100  H       EA    L        H
750  EA   H    H       01FF  H       EA    L        H
950  EA   H    H       01FE  H       EA    L        H
1150 00   H    H       FFFC  H       00    L        L
1350 E0   H    H       FFFD  H       E0    L        H
# CLI
1550 58   H    H       E000  H       58    H        H
1750 EA   H    H       E001  H       EA    L        H
# both fall behind it
1950 EA   L    L       E001  H       EA    H        H
2150 EA   L    L       E002  H       EA    L        H
2350 EA   L    L       E002  H       EA    H        H
# _NMI comes first
2550 EA   L    L       E002  H       EA    L        H
2750 EA   L    L       01FD  L       E0    L        H
2950 EA   L    L       01FC  L       02    L        H
3150 EA   L    L       01FB  L       22    L        H
3350 00   L    L       FFFA  H       00    L        L
3550 E2   L    L       FFFB  H       E2    L        H
# RTI; _IRQ has waited
3750 40   L    L       E200  H       40    H        H
3950 EA   L    L       E201  H       EA    L        H
4150 EA   L    L       01FA  H       EA    L        H
4350 22   L    L       01FB  H       22    L        H
4550 02   L    L       01FC  H       02    L        H
4750 E0   L    L       01FD  H       E0    L        H
4950 EA   L    L       E002  H       EA    H        H
5150 EA   L    L       E002  H       EA    L        H
5350 EA   L    L       01FD  L       E0    L        H
5550 EA   L    L       01FC  L       02    L        H
5750 EA   L    L       01FB  L       22    L        H
5950 00   L    L       FFFE  H       00    L        L
6150 E4   L    L       FFFF  H       E4    L        H
6350 EA   H    H       E400  H       EA    H        H
6550 EA   H    H       E401  H       EA    L        H
