time A   _OE => q0
0    003 L      UUUUUUUU
20   003 L      43
