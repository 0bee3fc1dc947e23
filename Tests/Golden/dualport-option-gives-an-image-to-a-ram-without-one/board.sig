# The board names no image; afterwards it names none again.
ram(cbmfile=hey.prg)
time A   _OE => q0
0    000 L      UUUUUUUU
20   000 L      UUUUUUUU
50   011 L      UUUUUUUU
70   011 L      48
100  012 L      48
120  012 L      45
