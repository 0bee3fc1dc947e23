# No time passes, and every letter goes through.
time a        => q        back
0    01          80       01
10   A5          A5       A5
11   35          AC       35
12   0F          F0       0F
13   ZLHUHLLZ    ZLLHUHLZ ZLHUHLLZ
14   ZZZZZZZZ    ZZZZZZZZ ZZZZZZZZ
15   C8          13       C8
