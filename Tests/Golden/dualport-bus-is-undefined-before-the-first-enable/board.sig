A = 03
RW = H
time D  _G _OE _CE => bus
# The enables are undefined: so is the RAM's output, and a driver on its bus is one too many.
0    5A H  U   U      UUUUUUUU
50   5A L  U   U      UUUUUUUU
80   5A H  U   U      UUUUUUUU
# _OE gets high: 10 ns later the bus is free.
100  5A H  H   U      UUUUUUUU
109  5A H  H   U      UUUUUUUU
110  5A H  H   U      ZZZZZZZZ
150  5A L  H   U      5A
180  5A H  H   U      ZZZZZZZZ
# With _OE low and _CE still undefined nothing happens.
200  5A H  L   U      ZZZZZZZZ
240  5A H  L   U      ZZZZZZZZ
300  5A H  L   L      UUUUUUUU
320  5A H  L   L      43
