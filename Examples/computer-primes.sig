# The processor is reset by two negative flanks of the clock with _reset low, which are at 1000 and 2000, and one with
# _reset high at 3000. Seven cycles later, at 10000, it fetches its first opcode from FF00. The byte of a write stands on
# the latch 32 ns behind the end of the cycle: 5 of the strobe and 27 of the latch.

time      _reset  ==(dT)=>  shown  address  sync

# Reset clears the latch.
0         L       500       00     X        X
2500      H       500       00     X        L

# The vector, and the first opcode 30 ns behind the flank
8000      H       30        00     FFFC     L
9000      H       30        00     FFFD     L
10000     H       29        00     X        X
10100     H       0         00     FF00     H


# The memory is cleared by then, and the first dozen of primes follows, each sampled 1 ns before it comes and when it is there.
2594000   H       31        00     X        X
2594001   H       31        02     X        X
4514000   H       31        02     X        X
4514001   H       31        03     X        X
5816000   H       31        03     X        X
5816001   H       31        05     X        X
6608000   H       31        05     X        X
6608001   H       31        07     X        X
7199000   H       31        07     X        X
7199001   H       31        0B     X        X
7571000   H       31        0B     X        X
7571001   H       31        0D     X        X
7907000   H       31        0D     X        X
7907001   H       31        11     X        X
7944000   H       31        11     X        X
7944001   H       31        13     X        X
8005000   H       31        13     X        X
8005001   H       31        17     X        X
8090000   H       31        17     X        X
8090001   H       31        1D     X        X
8127000   H       31        1D     X        X
8127001   H       31        1F     X        X
8212000   H       31        1F     X        X
8212001   H       31        25     X        X

# The last prime, 251
11326000  H       31        F1     X        X
11326001  H       31        FB     X        X

# 54 of them
11395000  H       31        FB     X        X
11395001  H       31        36     X        X

# It stays.
11495032  H       0         36     X        X
