# address.prg: 02 10, beyond.prg: FF FF. An address alone may lie anywhere.
time AE   AS  => E        S
0    1002 FFF    UUUUUUUU UUUUUUUU
10   0    0      UUUUUUUU UUUUUUUU
