# tail.prg: FE 1F (the address 1FFE), D0 D1 D2 D3 D4; tail.bin: D0 D1 D2 D3 D4.
rom()
time A    => D
0    1FFE    D0
10   1FFF    D0
20   0       UUUUUUUU
