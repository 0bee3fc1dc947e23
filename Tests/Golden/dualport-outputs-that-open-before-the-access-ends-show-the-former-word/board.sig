AL = 03
RWL = H
DL = 00
_GL = H
_OER = H
_CER = L
time _OEL _CEL AR  DR _GR RWR => ram.IOL  ram.IOR
# The left side reads 43 and is disabled; meanwhile the right one writes 99 there.
0    L    L    000 99 H   H      UUUUUUUU UUUUUUUU
20   L    L    000 99 H   H      43       ZZZZZZZZ
100  H    H    000 99 H   H      43       ZZZZZZZZ
110  H    H    000 99 H   H      ZZZZZZZZ ZZZZZZZZ
200  H    H    003 99 L   L      ZZZZZZZZ 99
216  H    H    003 99 L   H      ZZZZZZZZ 99
220  H    H    000 99 H   H      ZZZZZZZZ ZZZZZZZZ
# Both enables at once: _OE opens the outputs after 11 ns with the former word, the access ends after 20 ns.
300  L    L    000 99 H   H      UUUUUUUU ZZZZZZZZ
310  L    L    000 99 H   H      UUUUUUUU ZZZZZZZZ
311  L    L    000 99 H   H      43       ZZZZZZZZ
319  L    L    000 99 H   H      43       ZZZZZZZZ
320  L    L    000 99 H   H      99       ZZZZZZZZ
# The same with _OE 5 ns behind.
400  H    H    000 99 H   H      99       ZZZZZZZZ
410  H    H    000 99 H   H      ZZZZZZZZ ZZZZZZZZ
500  H    H    003 77 L   L      ZZZZZZZZ 77
516  H    H    003 77 L   H      ZZZZZZZZ 77
520  H    H    000 77 H   H      ZZZZZZZZ ZZZZZZZZ
600  H    L    000 77 H   H      ZZZZZZZZ ZZZZZZZZ
604  H    L    000 77 H   H      ZZZZZZZZ ZZZZZZZZ
605  L    L    000 77 H   H      UUUUUUUU ZZZZZZZZ
615  L    L    000 77 H   H      UUUUUUUU ZZZZZZZZ
616  L    L    000 77 H   H      99       ZZZZZZZZ
619  L    L    000 77 H   H      99       ZZZZZZZZ
620  L    L    000 77 H   H      77       ZZZZZZZZ
# The same with _OE 15 ns behind: the access is through when the outputs open.
700  H    H    000 77 H   H      77       ZZZZZZZZ
710  H    H    000 77 H   H      ZZZZZZZZ ZZZZZZZZ
800  H    H    003 55 L   L      ZZZZZZZZ 55
816  H    H    003 55 L   H      ZZZZZZZZ 55
820  H    H    000 55 H   H      ZZZZZZZZ ZZZZZZZZ
900  H    L    000 55 H   H      ZZZZZZZZ ZZZZZZZZ
915  L    L    000 55 H   H      UUUUUUUU ZZZZZZZZ
925  L    L    000 55 H   H      UUUUUUUU ZZZZZZZZ
926  L    L    000 55 H   H      55       ZZZZZZZZ
