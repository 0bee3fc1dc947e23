_OE = L
D = 00
_G = H
time A   RW _CE => qL       qR
# RW rises with the address: the word after 20 ns. A low pulse of 5 ns writes nothing.
0    001 H  L      UUUUUUUU UUUUUUUU
20   001 H  L      41       41
95   001 L  L      41       41
100  002 H  L      41       41
103  002 H  L      UUUUUUUU UUUUUUUU
119  002 H  L      UUUUUUUU UUUUUUUU
120  002 H  L      42       42
# RW rises 1 ns behind it: the word comes 1 ns later; 7 ns: 7 later.
195  002 L  L      42       42
200  003 L  L      42       42
201  003 H  L      42       42
203  003 H  L      UUUUUUUU UUUUUUUU
220  003 H  L      UUUUUUUU UUUUUUUU
221  003 H  L      43       43
295  003 L  L      43       43
300  004 L  L      43       43
307  004 H  L      UUUUUUUU UUUUUUUU
326  004 H  L      UUUUUUUU UUUUUUUU
327  004 H  L      44       44
# RW falls when the word is due: it comes only after the rise.
400  005 H  L      44       44
420  005 L  L      UUUUUUUU UUUUUUUU
425  005 H  L      UUUUUUUU UUUUUUUU
444  005 H  L      UUUUUUUU UUUUUUUU
445  005 H  L      45       45
# 1 ns later: the word is there, and a low RW doesn't take it away.
500  006 H  L      45       45
520  006 H  L      46       46
521  006 L  L      46       46
530  006 H  L      46       46
560  006 H  L      46       46
# The same behind a fall of _CE: RW rises 1 ns late, or falls when the word is due.
600  006 H  H      46       46
610  006 H  H      ZZZZZZZZ ZZZZZZZZ
650  007 H  H      ZZZZZZZZ ZZZZZZZZ
695  007 L  H      ZZZZZZZZ ZZZZZZZZ
700  007 L  L      UUUUUUUU UUUUUUUU
701  007 H  L      UUUUUUUU UUUUUUUU
720  007 H  L      UUUUUUUU UUUUUUUU
721  007 H  L      47       47
800  007 H  H      47       47
810  007 H  H      ZZZZZZZZ ZZZZZZZZ
850  008 H  H      ZZZZZZZZ ZZZZZZZZ
900  008 H  L      UUUUUUUU UUUUUUUU
920  008 L  L      UUUUUUUU UUUUUUUU
925  008 H  L      UUUUUUUU UUUUUUUU
944  008 H  L      UUUUUUUU UUUUUUUU
945  008 H  L      48       48
# _CE rises when the word is due, or 5 ns before: it isn't read, and the output is undefined until it floats. 1 ns later it is.
1000 009 H  L      48       48
1015 009 H  H      UUUUUUUU UUUUUUUU
1020 009 H  H      UUUUUUUU UUUUUUUU
1024 009 H  H      UUUUUUUU UUUUUUUU
1025 009 H  H      ZZZZZZZZ ZZZZZZZZ
1050 009 H  L      UUUUUUUU UUUUUUUU
1070 009 H  L      49       49
1100 00A H  L      49       49
1120 00A H  H      UUUUUUUU UUUUUUUU
1129 00A H  H      UUUUUUUU UUUUUUUU
1130 00A H  H      ZZZZZZZZ ZZZZZZZZ
1150 00A H  L      UUUUUUUU UUUUUUUU
1170 00A H  L      4A       4A
1200 00B H  L      4A       4A
1220 00B H  L      4B       4B
1221 00B H  H      4B       4B
1230 00B H  H      4B       4B
1231 00B H  H      ZZZZZZZZ ZZZZZZZZ
