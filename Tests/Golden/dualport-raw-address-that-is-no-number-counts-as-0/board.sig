time A   _OE => q0
0    000 L      UUUUUUUU
20   000 L      40
50   00F L      40
70   00F L      4F
