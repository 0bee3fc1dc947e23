# The image of the option lies over the board's one during the run.
ram(rawfile=xy.txt,rawaddress=1)
time A   _OE => q0
0    000 L      UUUUUUUU
20   000 L      40
50   001 L      40
70   001 L      78
100  002 L      78
120  002 L      79
150  003 L      79
170  003 L      43
