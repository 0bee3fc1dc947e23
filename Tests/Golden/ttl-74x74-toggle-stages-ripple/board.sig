time _clear clock => q0 q1
0    L      L        U  U
34   L      L        U  U
35   L      L        L  L
100  H      L        L  L
200  H      H        L  L
235  H      H        H  L
300  H      L        H  L
# the second follows 35 ns behind the first
400  H      H        H  L
434  H      H        H  L
435  H      H        L  L
469  H      H        L  L
470  H      H        L  H
500  H      L        L  H
600  H      H        L  H
635  H      H        H  H
700  H      L        H  H
800  H      H        H  H
835  H      H        L  H
869  H      H        L  H
870  H      H        L  L
900  H      L        L  L
1000 H      H        L  L
1035 H      H        H  L
1100 L      H        H  L
1135 L      H        L  L
