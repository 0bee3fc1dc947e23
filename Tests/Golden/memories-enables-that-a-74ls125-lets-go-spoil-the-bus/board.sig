# rom.bin holds 5A C3, ram.bin 00 00 5A.
time level _on => bus
# rom is on
0    L     L      UUUUUUUU
124  L     L      UUUUUUUU
125  L     L      C3
# ram comes on 37 ns before rom is off
300  H     L      C3
387  H     L      C3
388  H     L      UUUUUUUU
424  H     L      UUUUUUUU
425  H     L      5A
# nobody holds the enables: both are undefined
600  H     H      5A
687  H     H      5A
688  H     H      UUUUUUUU
725  H     H      UUUUUUUU
# rom is on again
900  L     L      UUUUUUUU
1024 L     L      UUUUUUUU
1025 L     L      C3
