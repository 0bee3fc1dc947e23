time A _OE => q0
0 0 L UUUUUUUU
