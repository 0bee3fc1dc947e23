time a ~b => q ~z
7 1 ~HL H 3
12345 L LH ~L 1