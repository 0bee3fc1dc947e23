time S1 S0 _ENT _ENP CLK HA => QHA      _RCO
0    L  L  L    L    L   00    UUUUUUUU U
16   L  L  L    L    L   00    UUUUUUUU U
# cleared for one nanosecond more, then loaded; the data come with the clock, which is high for one nanosecond
100  L  L  L    L    L   11    UUUUUUUU U
101  H  L  L    L    H   22    UUUUUUUU U
102  H  L  L    L    L   33    UUUUUUUU U
115  H  L  L    L    L   33    UUUUUUUU U
116  H  L  L    L    L   33    00       H
117  H  L  L    L    L   33    22       H
118  H  L  L    L    L   33    22       H
# two clocks, two nanoseconds apart; the mode changes with the second
200  H  H  L    L    L   33    22       H
300  H  H  L    L    H   33    22       H
301  H  H  L    L    L   33    22       H
302  L  H  L    L    H   33    22       H
303  L  H  L    L    L   33    22       H
315  L  H  L    L    L   33    22       H
316  L  H  L    L    L   33    23       H
317  L  H  L    L    L   33    23       H
318  L  H  L    L    L   33    22       H
319  L  H  L    L    L   33    22       H
# enabled one nanosecond before the clock, disabled with it: no count
399  L  H  L    L    L   33    22       H
400  L  H  H    L    H   33    22       H
416  L  H  H    L    H   33    22       H
# enabled one nanosecond behind it: no count
500  L  H  L    H    L   33    22       H
600  L  H  L    H    H   33    22       H
601  L  H  L    L    H   33    22       H
616  L  H  L    L    H   33    22       H
617  L  H  L    L    H   33    22       H
# enabled for the nanosecond of the clock
700  L  H  L    H    L   33    22       H
800  L  H  L    L    H   33    22       H
801  L  H  L    H    H   33    22       H
815  L  H  L    H    H   33    22       H
816  L  H  L    H    H   33    21       H
817  L  H  L    H    H   33    21       H
# cleared for one nanosecond
900  L  L  L    H    H   33    21       H
901  H  H  L    H    H   33    21       H
915  H  H  L    H    H   33    21       H
916  H  H  L    H    H   33    00       H
917  H  H  L    H    H   33    00       H
# clear with the clock
1000 H  L  L    H    L   44    00       H
1100 H  L  L    H    H   44    00       H
1116 H  L  L    H    H   44    44       H
1200 H  L  L    H    L   55    44       H
1300 L  L  L    H    H   55    44       H
1316 L  L  L    H    H   55    00       H
# the mode leaves the clear one nanosecond behind the clock: no load
1400 L  L  L    H    L   66    00       H
1500 L  L  L    H    H   66    00       H
1501 H  L  L    H    H   66    00       H
1516 H  L  L    H    H   66    00       H
1517 H  L  L    H    H   66    00       H
