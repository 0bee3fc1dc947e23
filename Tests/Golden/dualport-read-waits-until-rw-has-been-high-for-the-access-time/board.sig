_OE = L
_CE = L
D = 00
_G = H
time A   RW => qL       qR
# RW rises with the address: the word after 20 ns. A low pulse of 5 ns writes nothing.
0    001 H     UUUUUUUU UUUUUUUU
20   001 H     41       41
95   001 L     41       41
100  002 H     41       41
103  002 H     UUUUUUUU UUUUUUUU
119  002 H     UUUUUUUU UUUUUUUU
120  002 H     42       42
# RW rises 1 ns behind it: the word comes 1 ns later; 7 ns: 7 later.
195  002 L     42       42
200  003 L     42       42
201  003 H     42       42
203  003 H     UUUUUUUU UUUUUUUU
220  003 H     UUUUUUUU UUUUUUUU
221  003 H     43       43
295  003 L     43       43
300  004 L     43       43
307  004 H     UUUUUUUU UUUUUUUU
326  004 H     UUUUUUUU UUUUUUUU
327  004 H     44       44
# RW falls when the word is due: it comes only after the rise.
400  005 H     44       44
420  005 L     UUUUUUUU UUUUUUUU
425  005 H     UUUUUUUU UUUUUUUU
444  005 H     UUUUUUUU UUUUUUUU
445  005 H     45       45
# 1 ns later: the word is there, and a low RW doesn't take it away.
500  006 H     45       45
520  006 H     46       46
521  006 L     46       46
530  006 H     46       46
560  006 H     46       46
