# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte _IRQ _NMI _RES => cpu.A            cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA   H    H    H       0000             H       EA    L        H
550  EA   H    H    H       0100             H       EA    L        H
750  EA   H    H    H       01FF             H       EA    L        H
950  EA   H    H    H       01FE             H       EA    L        H
1150 00   H    H    H       FFFC             H       00    L        L
1350 E0   H    H    H       FFFD             H       E0    L        H
# STP
1550 DB   H    H    H       E000             H       DB    H        H
1750 EA   H    H    H       E001             H       EA    L        H
# no interrupt wakes it
1950 EA   L    H    H       E001             H       EA    L        H
2150 EA   L    H    H       E001             H       EA    L        H
2350 EA   L    L    H       E001             H       EA    L        H
2550 EA   L    L    H       E001             H       EA    L        H
# its lines are driven at each flank all the same
2609 EA   L    L    H       E001             H       EA    L        H
2610 EA   L    L    H       UUUUUUUUUUUUUUUU U       EA    U        U
2629 EA   L    L    H       UUUUUUUUUUUUUUUU U       EA    U        U
2630 EA   L    L    H       E001             H       EA    L        H
# nor does a reset that is low at one flank
2750 EA   L    L    L       E001             H       EA    L        H
2950 EA   L    L    H       E001             H       EA    L        H
3150 EA   H    H    H       E001             H       EA    L        H
# a reset that is low at two flanks does, when it is high
3350 EA   H    H    L       E001             H       EA    L        H
3550 EA   H    H    L       E001             H       EA    L        H
3750 EA   H    H    H       E001             H       EA    L        H
# the reset sequence
3950 EA   H    H    H       0000             H       EA    L        H
4150 EA   H    H    H       0100             H       EA    L        H
4350 EA   H    H    H       01FF             H       EA    L        H
4550 EA   H    H    H       01FE             H       EA    L        H
4750 00   H    H    H       FFFC             H       00    L        L
4950 E5   H    H    H       FFFD             H       E5    L        H
5150 EA   H    H    H       E500             H       EA    H        H
5350 EA   H    H    H       E501             H       EA    L        H
5550 EA   H    H    H       E501             H       EA    H        H
5750 EA   H    H    H       E502             H       EA    L        H
