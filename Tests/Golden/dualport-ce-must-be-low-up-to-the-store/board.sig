time A   D  _G RW _OE _CE => qL       qR
# _CE rises when the word would be stored, or 1 ns later.
0    001 A5 H  H  H   L      UUUUUUUU UUUUUUUU
20   001 A5 H  H  H   L      ZZZZZZZZ ZZZZZZZZ
100  001 A5 L  L  H   L      A5       A5
115  001 A5 L  L  H   H      A5       A5
130  001 A5 L  H  H   H      A5       A5
140  002 A5 L  H  H   L      A5       A5
200  002 A5 L  L  H   L      A5       A5
216  002 A5 L  L  H   H      A5       A5
230  002 A5 L  H  H   H      A5       A5
240  003 A5 L  H  H   L      A5       A5
# _CE falls behind RW: stored 15 ns later, and again 5 ns behind that. It is low for 15, 16 and 21 ns.
300  003 A5 L  H  H   H      A5       A5
320  003 A5 L  L  H   H      A5       A5
340  003 A5 L  L  H   L      A5       A5
355  003 A5 L  L  H   H      A5       A5
370  004 A5 L  L  H   H      A5       A5
400  004 A5 L  L  H   L      A5       A5
416  004 5A L  L  H   H      5A       5A
430  005 A5 L  L  H   H      A5       A5
500  005 A5 L  L  H   L      A5       A5
516  005 5A L  L  H   L      5A       5A
521  005 5A L  L  H   H      5A       5A
550  005 5A L  H  H   H      5A       5A
560  005 5A H  H  H   H      ZZZZZZZZ ZZZZZZZZ
# The words.
600  001 5A H  H  L   L      UUUUUUUU UUUUUUUU
620  001 5A H  H  L   L      41       41
650  002 5A H  H  L   L      41       41
670  002 5A H  H  L   L      A5       A5
700  003 5A H  H  L   L      A5       A5
720  003 5A H  H  L   L      43       43
750  004 5A H  H  L   L      43       43
770  004 5A H  H  L   L      A5       A5
800  005 5A H  H  L   L      A5       A5
820  005 5A H  H  L   L      5A       5A
