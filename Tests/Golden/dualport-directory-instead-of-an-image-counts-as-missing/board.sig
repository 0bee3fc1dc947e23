time A   _OE => q0
0    000 L      UUUUUUUU
20   000 L      40
