A = 10
_CE = L
time D  _G RW _OE => qL       qR
# A word written with the outputs off, which are enabled right after it.
0    77 H  H  H      UUUUUUUU UUUUUUUU
20   77 H  H  H      ZZZZZZZZ ZZZZZZZZ
100  77 L  L  H      77       77
116  77 L  H  H      77       77
120  77 H  H  H      ZZZZZZZZ ZZZZZZZZ
121  77 H  H  L      UUUUUUUU UUUUUUUU
132  77 H  H  L      UUUUUUUU UUUUUUUU
135  77 H  H  L      UUUUUUUU UUUUUUUU
136  77 H  H  L      77       77
# The next word: until RW has been high for the access time the former one is on the outputs.
200  77 H  H  H      77       77
210  77 H  H  H      ZZZZZZZZ ZZZZZZZZ
220  88 L  L  H      88       88
236  88 L  H  H      88       88
237  88 H  H  H      ZZZZZZZZ ZZZZZZZZ
238  88 H  H  L      UUUUUUUU UUUUUUUU
248  88 H  H  L      UUUUUUUU UUUUUUUU
249  88 H  H  L      77       77
255  88 H  H  L      77       77
256  88 H  H  L      88       88
