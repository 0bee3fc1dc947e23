A = 03
_OE = L
time _CE => qL       qR
0    L      UUUUUUUU UUUUUUUU
20   L      43       43
# _CE is high for 2 ns: undefined at once, floating 10 ns behind the rise, the word 20 ns behind the fall.
100  H      43       43
101  H      43       43
102  L      UUUUUUUU UUUUUUUU
109  L      UUUUUUUU UUUUUUUU
110  L      ZZZZZZZZ ZZZZZZZZ
121  L      ZZZZZZZZ ZZZZZZZZ
122  L      43       43
# _CE is high for 10 ns: it floats and is driven at the same time, and floating comes last.
200  H      43       43
209  H      43       43
210  L      ZZZZZZZZ ZZZZZZZZ
229  L      ZZZZZZZZ ZZZZZZZZ
230  L      43       43
# _CE is high for 11 ns.
300  H      43       43
309  H      43       43
310  H      ZZZZZZZZ ZZZZZZZZ
311  L      UUUUUUUU UUUUUUUU
330  L      UUUUUUUU UUUUUUUU
331  L      43       43
