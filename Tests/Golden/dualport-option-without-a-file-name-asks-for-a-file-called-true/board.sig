# An option without a value is true, so it asks for a file of that name. What was loaded before stays.
ram(rawfile=)
time A   _OE => q0
0    000 L      UUUUUUUU
20   000 L      40
50   001 L      40
70   001 L      41
