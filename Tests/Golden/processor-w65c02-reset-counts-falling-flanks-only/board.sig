# The clock falls at 1600, 1800 and so on.
time _RES => cpu.A cpu.SYNC
# _RES low between flanks only
1550 H       EAEA  H
1640 L       EAEB  L
1780 H       EAEB  L
1840 L       EAEB  H
1980 H       EAEB  H
# low at a rising and a falling flank
2060 L       EAEC  L
2240 H       EAEC  H
2350 H       EAEC  H
2450 H       EAED  L
# low from 1 ns before a flank until 1 ns behind the next
2599 L       EAED  L
2750 L       EAED  H
2801 H       EAED  H
2950 H       EAEE  L
# it is high at the next
3150 H       0000  L
3350 H       0100  L
