# The slow driver is undefined up to 6 ns.
time _g1 _g2 => wire even
0    L   H      U    U
2    L   H      U    U
3    L   H      U    H
5    L   H      U    H
6    L   H      H    H
# To the slow driver: nobody drives for 3 ns. Equal delays leave no gap.
100  H   L      H    H
102  H   L      H    H
103  H   L      Z    L
105  H   L      Z    L
106  H   L      L    L
# Back to the fast one: both drive for 3 ns.
200  L   H      L    L
202  L   H      L    L
203  L   H      U    H
205  L   H      U    H
206  L   H      H    H
