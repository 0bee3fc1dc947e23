# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA      0000  H       EA    L        H
550  EA      0100  H       EA    L        H
750  EA      01FF  H       EA    L        H
950  EA      01FE  H       EA    L        H
1150 00      FFFC  H       00    L        L
1350 E0      FFFD  H       E0    L        H
# LDA #$99, ADC #$01 in two cycles, PHP: N
1550 A9      E000  H       A9    H        H
1750 99      E001  H       99    L        H
1950 69      E002  H       69    H        H
2150 01      E003  H       01    L        H
2350 08      E004  H       08    H        H
2550 EA      E005  H       EA    L        H
2750 EA      01FD  L       B4    L        H
# SED, LDA #$99, CLC
2950 F8      E005  H       F8    H        H
3150 EA      E006  H       EA    L        H
3350 A9      E006  H       A9    H        H
3550 99      E007  H       99    L        H
3750 18      E008  H       18    H        H
3950 EA      E009  H       EA    L        H
# ADC #$01 in three cycles, PHP: C and Z
4150 69      E009  H       69    H        H
4350 01      E00A  H       01    L        H
4750 08      E00B  H       08    H        H
4950 EA      E00C  H       EA    L        H
5150 EA      01FC  L       3F    L        H
# SEC, SBC #$01 in three cycles, PHP: N without C
5350 38      E00C  H       38    H        H
5550 EA      E00D  H       EA    L        H
5750 E9      E00D  H       E9    H        H
5950 01      E00E  H       01    L        H
6350 08      E00F  H       08    H        H
6550 EA      E010  H       EA    L        H
6750 EA      01FB  L       BC    L        H
# STA $10
6950 85      E010  H       85    H        H
7150 10      E011  H       10    L        H
7350 10      0010  L       99    L        H
7550 EA      E012  H       EA    H        H
