time A   _OE => D        bus
# Never set, it only shows the bus, with U for Z.
0    003 H      UUUUUUUU UUUUUUUU
9    003 H      UUUUUUUU UUUUUUUU
10   003 H      UUUUUUUU ZZZZZZZZ
50   003 L      UUUUUUUU UUUUUUUU
61   003 L      43       43
100  003 H      43       43
110  003 H      UUUUUUUU ZZZZZZZZ
