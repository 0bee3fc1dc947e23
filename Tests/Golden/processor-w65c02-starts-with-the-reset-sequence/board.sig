# A line is a cycle, looked at 50 ns behind the rising flank: its byte is what the falling flank at the end of it reads.
time byte => cpu.A cpu.R/W cpu.D cpu.SYNC cpu._VP
# the reset sequence
350  EA      0000  H       EA    L        H
550  EA      0100  H       EA    L        H
750  EA      01FF  H       EA    L        H
950  EA      01FE  H       EA    L        H
1150 23      FFFC  H       23    L        L
1350 E1      FFFD  H       E1    L        H
# the first instruction
1550 A9      E123  H       A9    H        H
1750 5A      E124  H       5A    L        H
# and the next: it stores the accumulator
1950 85      E125  H       85    H        H
2150 10      E126  H       10    L        H
2350 10      0010  L       5A    L        H
2550 EA      E127  H       EA    H        H
2750 EA      E128  H       EA    L        H
2950 EA      E128  H       EA    H        H
3150 EA      E129  H       EA    L        H
