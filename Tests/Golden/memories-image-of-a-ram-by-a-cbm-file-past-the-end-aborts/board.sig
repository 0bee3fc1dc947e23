# tail.bin: D0 D1 D2 D3 D4. tail.prg: FF 7F (the address 7FFF), E0 E1.
time AE AS => E  S
0    0  0     D0 UUUUUUUU
