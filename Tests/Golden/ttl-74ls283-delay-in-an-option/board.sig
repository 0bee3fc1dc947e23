u(delay=50)
v(delay=5)
time _cin A B => u.C  u.cout other.C other.cout v.C  v.cout
0    H    9 6    UUUU U      UUUU    U          UUUU U
5    H    9 6    UUUU U      UUUU    U          UUUU U
6    H    9 6    UUUU U      UUUU    U          HHHH L
24   H    9 6    UUUU U      UUUU    U          HHHH L
25   H    9 6    UUUU U      HHHH    L          HHHH L
50   H    9 6    UUUU U      HHHH    L          HHHH L
51   H    9 6    HHHH L      HHHH    L          HHHH L
100  L    9 6    HHHH L      HHHH    L          HHHH L
105  L    9 6    HHHH L      HHHH    L          HHHH L
106  L    9 6    HHHH L      HHHH    L          LLLL H
124  L    9 6    HHHH L      HHHH    L          LLLL H
125  L    9 6    HHHH L      LLLL    H          LLLL H
150  L    9 6    HHHH L      LLLL    H          LLLL H
151  L    9 6    LLLL H      LLLL    H          LLLL H
200  H    9 6    LLLL H      LLLL    H          LLLL H
205  H    9 6    LLLL H      LLLL    H          LLLL H
206  H    9 6    LLLL H      LLLL    H          HHHH L
224  H    9 6    LLLL H      LLLL    H          HHHH L
225  H    9 6    LLLL H      HHHH    L          HHHH L
250  H    9 6    LLLL H      HHHH    L          HHHH L
251  H    9 6    HHHH L      HHHH    L          HHHH L
