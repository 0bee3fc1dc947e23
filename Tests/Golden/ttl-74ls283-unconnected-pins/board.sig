time A B cin ==(dT)=> all.C all.cout no_a.C no_a.cout no_b.C no_b.cout no_cin.C no_cin.cout open.C open.cout
0    1 2 H   24       LHLL  L        UUUU   U         UUUU   U         UUUU     U           UUUU   U
100  F 1 L   24       LLLL  H        UUUU   U         UUUU   U         UUUU     U           UUUU   U
200  0 0 L   24       LLLL  L        UUUU   U         UUUU   U         UUUU     U           UUUU   U
