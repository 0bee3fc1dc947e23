# The EPROM answers 150 ns after a change. Segments:    a
#                                                     f   b
#                                                       g
#                                                     e   c
#                                                       d

time  digit  anode  blank  ==(dT)=>  a b c d e f g  word

0     0      L      L      150       1 1 1 1 1 1 0  3F
200   1      L      L      150       0 1 1 0 0 0 0  06
400   2      L      L      150       1 1 0 1 1 0 1  5B
600   3      L      L      150       1 1 1 1 0 0 1  4F
800   4      L      L      150       0 1 1 0 0 1 1  66
1000  5      L      L      150       1 0 1 1 0 1 1  6D
1200  6      L      L      150       1 0 1 1 1 1 1  7D
1400  7      L      L      150       1 1 1 0 0 0 0  07
1600  8      L      L      150       1 1 1 1 1 1 1  7F
1800  9      L      L      150       1 1 1 1 0 1 1  6F
2000  A      L      L      150       1 1 1 0 1 1 1  77
2200  B      L      L      150       0 0 1 1 1 1 1  7C
2400  C      L      L      150       1 0 0 1 1 1 0  39
2600  D      L      L      150       0 1 1 1 1 0 1  5E
2800  E      L      L      150       1 0 0 1 1 1 1  79
3000  F      L      L      150       1 0 0 0 1 1 1  71

# The other kind of display
3200  0      H      L      150       0 0 0 0 0 0 1  40
3400  5      H      L      150       0 1 0 0 1 0 0  12
# Until 150 ns have passed the old digit is shown.
3600  8      H      L      149       0 1 0 0 1 0 0  12
3800  8      H      L      150       0 0 0 0 0 0 0  00

# Blanked, and a digit of which a bit is unknown
4000  8      L      H      150       U U U U U U U  ZZZZZZZZ
4200  HLLU   L      L      150       U U U U U U U  UUUUUUUU
