# The second master comes and goes while PHI2 is low, with a gap between it and the processor. A byte that is written to
# the latch is shown 32 ns behind the end of the cycle.

time   _reset  ready  bus_enable  master_address  master_data  master_rw  _master  =>  shown  address           data

# Reset: two negative flanks of the clock with _reset low, one with _reset high. From 17000 on, the program reads the RAM
# and writes what's there to the latch, each 11 us.
0      L       H      H           0000            00           H          H            X      X                 X
27     L       H      H           0000            00           H          H            00     X                 X
2500   H       H      H           0000            00           H          H            00     X                 X
25031  H       H      H           0000            00           H          H            00     X                 X
25032  H       H      H           0000            00           H          H            55     X                 X

# At 50000 the processor begins to fetch an opcode from FF06. It's halted, and gone from the bus 25 ns later.
50100  H       L      L           0200            A5           L          H            55     FF06              X
50124  H       L      L           0200            A5           L          H            55     FF06              X
50125  H       L      L           0200            A5           L          H            55     ZZZZZZZZZZZZZZZZ  X
# The second master writes a byte in this cycle...
50130  H       L      L           0200            A5           L          L            55     ZZZZZZZZZZZZZZZZ  X
50140  H       L      L           0200            A5           L          L            55     0200              X
50900  H       L      L           0200            A5           L          L            55     0200              A5
# ...and its neighbour in the next one...
51100  H       L      L           0201            3C           L          L            55     X                 X
51900  H       L      L           0201            3C           L          L            55     0201              3C
# ...and reads both.
52100  H       L      L           0200            00           H          L            55     X                 X
52900  H       L      L           0200            00           H          L            55     0200              A5
53100  H       L      L           0201            00           H          L            55     X                 X
53900  H       L      L           0201            00           H          L            55     0201              3C

# It goes, and the processor, back on the bus 25 ns after it's let, takes its opcode 4 us later than it would have. The
# byte it finds in the RAM is the second master's.
54100  H       L      L           0000            00           H          H            55     0201              X
54110  H       L      L           0000            00           H          H            55     ZZZZZZZZZZZZZZZZ  X
54120  H       H      H           0000            00           H          H            55     ZZZZZZZZZZZZZZZZ  X
54144  H       H      H           0000            00           H          H            55     ZZZZZZZZZZZZZZZZ  X
54145  H       H      H           0000            00           H          H            55     FF06              X
62031  H       H      H           0000            00           H          H            55     X                 X
62032  H       H      H           0000            00           H          H            A5     X                 X

# The cycle from 72000 on would be the next write to the latch: the processor is halted in it, and the second master writes
# there itself.
72100  H       L      L           4000            11           L          H            A5     4000              X
72125  H       L      L           4000            11           L          H            A5     ZZZZZZZZZZZZZZZZ  X
72130  H       L      L           4000            11           L          L            A5     ZZZZZZZZZZZZZZZZ  X
72900  H       L      L           4000            11           L          L            A5     4000              11
73031  H       L      L           4000            11           L          L            A5     4000              ZZZZZZZZ
73032  H       L      L           4000            11           L          L            11     4000              ZZZZZZZZ
# It leaves another byte in the RAM, too.
73100  H       L      L           0200            77           L          L            11     4000              ZZZZZZZZ
73900  H       L      L           0200            77           L          L            11     0200              77
74100  H       L      L           0000            00           H          H            11     0200              ZZZZZZZZ

# The processor does its write as soon as it's back, and the next time around it finds the new byte.
74120  H       H      H           0000            00           H          H            11     ZZZZZZZZZZZZZZZZ  ZZZZZZZZ
74145  H       H      H           0000            00           H          H            11     4000              ZZZZZZZZ
74525  H       H      H           0000            00           H          H            11     4000              A5
75031  H       H      H           0000            00           H          H            11     X                 X
75032  H       H      H           0000            00           H          H            A5     X                 X
86031  H       H      H           0000            00           H          H            A5     X                 X
86032  H       H      H           0000            00           H          H            77     X                 X
