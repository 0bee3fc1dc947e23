# The counter answers 52 ns after a rising clock (or a change of its load input), the decoder 38 ns after that.

time  _load  preset  down  =>  clk  count     line      _ripple

# Loading doesn't wait for the clock. The decoder takes unknown address bits for low.
0     L      6       L         L    X         X         X
51    L      6       L         L    UUUU      FE        U
52    L      6       L         L    6         FE        H
89    L      6       L         L    6         FE        H
90    L      6       L         L    6         BF        H

# A clock that rises while the load input is low counts nothing; the next one, at 300, does.
160   H      6       L         H    6         BF        H
351   H      6       L         H    6         BF        H
352   H      6       L         H    7         BF        H
389   H      6       L         H    7         BF        H
390   H      6       L         H    7         7F        H

# From 8 on no line is low.
590   H      6       L         H    8         FF        H
1900  H      6       L         H    E         FF        H

# 15 is the last count upwards: the ripple carry is low for the low half of the clock, and then it wraps to 0.
1990  H      6       L         H    F         FF        H
2051  H      6       L         L    F         FF        H
2052  H      6       L         L    F         FF        L
2151  H      6       L         H    F         FF        L
2152  H      6       L         H    0         FF        H
2190  H      6       L         H    0         FE        H

# Downwards from 0 it wraps to 15.
2220  H      6       H         L    0         FE        H
2390  H      6       H         H    F         FF        H
2590  H      6       H         H    E         FF        H
