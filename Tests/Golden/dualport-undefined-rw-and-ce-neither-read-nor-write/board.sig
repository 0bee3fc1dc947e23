time A   D  _G RW _OE _CE => qL       qR
# RW undefined: the word stays, no other one is read.
0    003 A5 H  H  L   L      UUUUUUUU UUUUUUUU
20   003 A5 H  H  L   L      43       43
50   003 A5 H  U  L   L      43       43
90   003 A5 H  U  L   L      43       43
100  004 A5 H  U  L   L      43       43
103  004 A5 H  U  L   L      UUUUUUUU UUUUUUUU
120  004 A5 H  U  L   L      UUUUUUUU UUUUUUUU
160  004 A5 H  U  L   L      UUUUUUUU UUUUUUUU
# High again: read 20 ns later.
200  004 A5 H  H  L   L      UUUUUUUU UUUUUUUU
219  004 A5 H  H  L   L      UUUUUUUU UUUUUUUU
220  004 A5 H  H  L   L      44       44
# Undefined RW writes nothing, nor does a low one that was undefined within 15 ns.
300  004 A5 H  H  H   L      44       44
310  004 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
320  004 A5 L  U  H   L      A5       A5
360  004 A5 L  Z  H   L      A5       A5
400  004 A5 L  L  H   L      A5       A5
414  004 A5 L  U  H   L      A5       A5
415  004 A5 L  L  H   L      A5       A5
430  004 A5 L  X  H   L      A5       A5
440  004 A5 L  H  H   L      A5       A5
450  004 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
500  004 A5 H  H  L   L      UUUUUUUU UUUUUUUU
511  004 A5 H  H  L   L      44       44
550  004 A5 H  H  H   L      44       44
560  004 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# An undefined _CE writes nothing.
600  004 A5 L  H  H   U      A5       A5
650  004 A5 L  L  H   U      A5       A5
690  004 A5 L  H  H   U      A5       A5
700  004 A5 L  H  H   Z      A5       A5
720  004 A5 L  L  H   Z      A5       A5
760  004 A5 L  H  H   Z      A5       A5
780  004 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
800  004 A5 H  H  L   L      UUUUUUUU UUUUUUUU
811  004 A5 H  H  L   L      44       44
850  004 A5 H  H  H   L      44       44
860  004 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
# _OE doesn't matter to a write.
900  004 A5 L  H  U   L      A5       A5
920  004 A5 L  L  U   L      A5       A5
940  004 A5 L  H  U   L      A5       A5
960  004 A5 H  H  U   L      ZZZZZZZZ ZZZZZZZZ
1000 004 A5 H  H  L   L      UUUUUUUU UUUUUUUU
1011 004 A5 H  H  L   L      A5       A5
