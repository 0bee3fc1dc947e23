# Registers answer after 28 ns, the display after 27. In the table: Z while nobody drives the bus, U where two do.

time  data  load0  load1  load2  take  _clear  _oe0  _oe1  _oe2  =>  bus       shown

# Each register takes its own number, with all outputs off.
0     11    L      L      L      L     L       H     H     H         X         X
50    11    H      L      L      L     H       H     H     H         ZZZZZZZZ  00
100   22    L      H      L      L     H       H     H     H         ZZZZZZZZ  00
150   33    L      L      H      L     H       H     H     H         ZZZZZZZZ  00

# One after the other on the bus, with a gap in between.
200   33    L      L      L      L     H       L     H     H         ZZZZZZZZ  00
228   33    L      L      L      L     H       L     H     H         11        00
250   33    L      L      L      H     H       L     H     H         11        00
277   33    L      L      L      H     H       L     H     H         11        11
300   33    L      L      L      L     H       H     H     H         11        11
328   33    L      L      L      L     H       H     H     H         ZZZZZZZZ  11
350   33    L      L      L      L     H       H     L     H         ZZZZZZZZ  11
378   33    L      L      L      L     H       H     L     H         22        11

# A careless change: the third register is switched on 10 ns before the second one is switched off. Two drivers on a wire
# are a fault even where they agree, and who clocks the bus in these 10 ns takes nothing but U.
400   33    L      L      L      L     H       H     L     L         22        11
410   33    L      L      L      L     H       H     H     L         22        11
427   33    L      L      L      L     H       H     H     L         22        11
428   33    L      L      L      H     H       H     H     L         UUUUUUUU  11
437   33    L      L      L      H     H       H     H     L         UUUUUUUU  11
438   33    L      L      L      H     H       H     H     L         33        11
455   33    L      L      L      H     H       H     H     L         33        UUUUUUUU

# Clocked again it is right, and cleared it is 0.
500   33    L      L      L      L     H       H     H     L         33        UUUUUUUU
550   33    L      L      L      H     H       H     H     L         33        UUUUUUUU
577   33    L      L      L      H     H       H     H     L         33        33
600   33    L      L      L      H     L       H     H     L         33        33
627   33    L      L      L      H     L       H     H     L         33        00
