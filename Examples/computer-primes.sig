# The processor is reset by two negative flanks of the clock with _reset low, which are at 1000 and 2000, and one with
# _reset high at 3000. The seventh cycle from there, which begins at 9000, fetches the first opcode from FF00. The byte of
# a write stands on the latch 32 ns behind the end of the cycle: 5 of the strobe and 27 of the latch.

time      _reset  =>  shown  address  sync

# Reset clears the latch.
0         L           X      X        X
27        L           00     X        X
2500      H           00     X        L

# The vector, and the first opcode 30 ns behind the flank
7030      H           00     FFFC     L
8030      H           00     FFFD     L
9029      H           00     X        U
9030      H           00     FF00     H

# The first dozen of primes, each 1 ns before it comes and when it's there
2593031   H           00     X        X
2593032   H           02     X        X
4513031   H           02     X        X
4513032   H           03     X        X
5815031   H           03     X        X
5815032   H           05     X        X
6607031   H           05     X        X
6607032   H           07     X        X
7198031   H           07     X        X
7198032   H           0B     X        X
7570031   H           0B     X        X
7570032   H           0D     X        X
7906031   H           0D     X        X
7906032   H           11     X        X
7943031   H           11     X        X
7943032   H           13     X        X
8004031   H           13     X        X
8004032   H           17     X        X
8089031   H           17     X        X
8089032   H           1D     X        X
8126031   H           1D     X        X
8126032   H           1F     X        X
8211031   H           1F     X        X
8211032   H           25     X        X

# The last prime, 251
11325031  H           F1     X        X
11325032  H           FB     X        X

# 54 of them, and that stays
11394031  H           FB     X        X
11394032  H           36     X        X
11494032  H           36     X        X
