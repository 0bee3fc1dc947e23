time _S _R _S2 _R2 => Q _Q Q2 _Q2
0    L  H  H   L      U U  U  U
# one gate after the other: 10 ns, then 20 ns
9    L  H  H   L      U U  U  U
10   L  H  H   L      H U  U  H
19   L  H  H   L      H U  U  H
20   L  H  H   L      H L  L  H
# released: both hold, each its own
100  H  H  H   H      H L  L  H
190  H  H  H   H      H L  L  H
# they change over
200  H  L  L   H      H L  L  H
209  H  L  L   H      H L  L  H
210  H  L  L   H      H H  H  H
220  H  L  L   H      L H  H  L
300  H  H  H   H      L H  H  L
390  H  H  H   H      L H  H  L
# a lost set of a latch that is reset: U goes round
400  U  H  H   H      L H  H  L
410  U  H  H   H      U H  H  L
420  U  H  H   H      U U  H  L
# not on the other side of the package; reset ends it
500  H  L  H   H      U U  H  L
510  H  L  H   H      U H  H  L
520  H  L  H   H      L H  H  L
600  H  H  H   H      L H  H  L
# both low, and both released at once: it swings, for the two gates are equally fast
700  L  L  H   H      L H  H  L
710  L  L  H   H      H H  H  L
800  H  H  H   H      H H  H  L
809  H  H  H   H      H H  H  L
810  H  H  H   H      L L  H  L
819  H  H  H   H      L L  H  L
820  H  H  H   H      H H  H  L
830  H  H  H   H      L L  H  L
# a reset stops it
900  H  L  H   H      H H  H  L
910  H  L  H   H      L H  H  L
1000 H  H  H   H      L H  H  L
1050 H  H  H   H      L H  H  L
