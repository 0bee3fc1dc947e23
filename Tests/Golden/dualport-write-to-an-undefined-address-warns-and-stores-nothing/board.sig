_CE = L
time A           D  _G RW _OE => qL       qR
# An undefined bit in the address: each write warns, at 115 and 120, on both RAMs; nothing is stored.
0    LLLLLLLLLLU A5 H  H  H      UUUUUUUU UUUUUUUU
20   LLLLLLLLLLU A5 H  H  H      ZZZZZZZZ ZZZZZZZZ
100  LLLLLLLLLLU A5 L  L  H      A5       A5
121  LLLLLLLLLLU A5 L  H  H      A5       A5
125  LLLLLLLLLLU A5 H  H  H      ZZZZZZZZ ZZZZZZZZ
# A shorter pulse warns once, one of 15 ns not at all.
200  LLLLLLLLLLU A5 L  L  H      A5       A5
216  LLLLLLLLLLU A5 L  H  H      A5       A5
300  LLLLLLLLLLU A5 L  L  H      A5       A5
315  LLLLLLLLLLU A5 L  H  H      A5       A5
325  LLLLLLLLLLU A5 H  H  H      ZZZZZZZZ ZZZZZZZZ
# Undefined and floating as a whole.
400  U           A5 L  H  H      A5       A5
420  U           A5 L  L  H      A5       A5
440  U           A5 L  H  H      A5       A5
500  ZZZZZZZZZZZ A5 L  H  H      A5       A5
520  ZZZZZZZZZZZ A5 L  L  H      A5       A5
540  ZZZZZZZZZZZ A5 L  H  H      A5       A5
550  ZZZZZZZZZZZ A5 H  H  H      ZZZZZZZZ ZZZZZZZZ
# The address gets undefined while RW is low: the word is stored at address 2, then the warnings begin.
600  002         A5 L  H  H      A5       A5
620  002         A5 L  L  H      A5       A5
640  LLLLLLLLUHL 96 L  L  H      96       96
670  LLLLLLLLUHL 96 L  H  H      96       96
680  LLLLLLLLUHL 96 H  H  H      ZZZZZZZZ ZZZZZZZZ
# What could have been meant has kept its word; only address 2 was written. Reading an undefined address gives U.
700  000         96 H  H  L      UUUUUUUU UUUUUUUU
720  000         96 H  H  L      40       40
750  001         96 H  H  L      40       40
770  001         96 H  H  L      41       41
800  LLLLLLLLLLU 96 H  H  L      41       41
803  LLLLLLLLLLU 96 H  H  L      UUUUUUUU UUUUUUUU
820  LLLLLLLLLLU 96 H  H  L      UUUUUUUU UUUUUUUU
850  002         96 H  H  L      UUUUUUUU UUUUUUUU
869  002         96 H  H  L      UUUUUUUU UUUUUUUU
870  002         96 H  H  L      A5       A5
900  006         96 H  H  L      A5       A5
920  006         96 H  H  L      46       46
950  ZZZZZZZZZZZ 96 H  H  L      46       46
953  ZZZZZZZZZZZ 96 H  H  L      UUUUUUUU UUUUUUUU
970  ZZZZZZZZZZZ 96 H  H  L      UUUUUUUU UUUUUUUU
1000 ZZZZZZZZZZZ 96 H  H  H      UUUUUUUU UUUUUUUU
1010 ZZZZZZZZZZZ 96 H  H  H      ZZZZZZZZ ZZZZZZZZ
1050 ZZZZZZZZZZZ 96 H  H  L      UUUUUUUU UUUUUUUU
1061 ZZZZZZZZZZZ 96 H  H  L      UUUUUUUU UUUUUUUU
