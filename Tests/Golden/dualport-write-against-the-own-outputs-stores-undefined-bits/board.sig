A = 05
_CE = L
time D  _G RW _OE => qL       qR
# The outputs are enabled while RW is low, and both drive: U is stored over the word.
0    A5 H  H  L      UUUUUUUU UUUUUUUU
20   A5 H  H  L      45       45
100  A5 L  L  L      UUUUUUUU UUUUUUUU
130  A5 L  H  L      UUUUUUUU UUUUUUUU
140  A5 H  H  L      45       45
149  A5 H  H  L      45       45
150  A5 H  H  L      UUUUUUUU UUUUUUUU
# With the outputs off in time the word is stored.
200  A5 H  H  H      UUUUUUUU UUUUUUUU
210  A5 H  H  H      ZZZZZZZZ ZZZZZZZZ
300  A5 L  L  H      A5       A5
330  A5 L  H  H      A5       A5
340  A5 H  H  H      ZZZZZZZZ ZZZZZZZZ
350  A5 H  H  L      UUUUUUUU UUUUUUUU
361  A5 H  H  L      A5       A5
# Off 10 ns behind the rise of _OE: at 15 ns behind the fall of RW they have gone if both change at once.
400  5A L  L  H      UUUUUUUU UUUUUUUU
409  5A L  L  H      UUUUUUUU UUUUUUUU
410  5A L  L  H      5A       5A
416  5A L  H  H      5A       5A
420  5A H  H  H      ZZZZZZZZ ZZZZZZZZ
440  5A H  H  L      UUUUUUUU UUUUUUUU
451  5A H  H  L      5A       5A
# 6 ns behind the fall of RW is too late for the first write, not for the second.
500  99 L  L  L      UUUUUUUU UUUUUUUU
506  99 L  L  H      UUUUUUUU UUUUUUUU
515  99 L  L  H      UUUUUUUU UUUUUUUU
516  99 L  L  H      99       99
517  99 L  H  H      99       99
520  99 H  H  H      ZZZZZZZZ ZZZZZZZZ
540  99 H  H  L      UUUUUUUU UUUUUUUU
551  99 H  H  L      UUUUUUUU UUUUUUUU
600  99 L  L  L      UUUUUUUU UUUUUUUU
606  99 L  L  H      UUUUUUUU UUUUUUUU
616  99 L  L  H      99       99
621  99 L  H  H      99       99
625  99 H  H  H      ZZZZZZZZ ZZZZZZZZ
645  99 H  H  L      UUUUUUUU UUUUUUUU
656  99 H  H  L      99       99
