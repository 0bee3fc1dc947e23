time _clear clock => q0 q1 q2 q3
0    L      H        U  U  U  U
20   L      H        L  L  L  L
100  H      H        L  L  L  L
200  H      L        L  L  L  L
220  H      L        H  L  L  L
300  H      H        H  L  L  L
400  H      L        H  L  L  L
420  H      L        L  H  L  L
500  H      H        L  H  L  L
600  H      L        L  H  L  L
620  H      L        H  H  L  L
700  H      H        H  H  L  L
# the fourth falling flank
800  H      L        H  H  L  L
819  H      L        H  H  L  L
820  H      L        L  L  L  L
839  H      L        L  L  L  L
840  H      L        L  L  H  L
