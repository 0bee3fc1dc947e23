# A line is a cycle; RDY changes in the middle of it and counts at its end.
time RDY => cpu.A cpu.R/W nmos.A nmos._R/W
1550 H      0000  H       0000   H
1750 H      0001  H       0001   H
# RDY falls in a write
1950 L      01FD  L       01FD   L
2150 L      01FD  L       01FC   L
2350 L      01FD  L       01FB   L
# the MOS6502 stops at its first read
2550 L      01FD  L       FFFE   H
2750 H      01FD  L       FFFE   H
# both go on
2950 H      01FC  L       FFFF   H
3150 H      01FB  L       0000   H
3350 H      FFFE  H       0001   H
3550 H      FFFF  H       01FA   L
