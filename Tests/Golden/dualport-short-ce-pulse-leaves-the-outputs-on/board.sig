A = 03
time _OE _CE => qL       qR
0    L   L      UUUUUUUU UUUUUUUU
20   L   L      43       43
100  L   H      43       43
110  L   H      ZZZZZZZZ ZZZZZZZZ
# _CE is low for 5 ns only. 20 ns behind its fall the outputs open, without an access, and nothing closes them:
# the former word is on the bus though _CE is high.
200  L   L      UUUUUUUU UUUUUUUU
205  L   H      UUUUUUUU UUUUUUUU
214  L   H      UUUUUUUU UUUUUUUU
215  L   H      ZZZZZZZZ ZZZZZZZZ
219  L   H      ZZZZZZZZ ZZZZZZZZ
220  L   H      43       43
290  L   H      43       43
# _CE low for longer than the access closes them when it rises.
300  L   L      UUUUUUUU UUUUUUUU
320  L   L      43       43
340  L   H      43       43
349  L   H      43       43
350  L   H      ZZZZZZZZ ZZZZZZZZ
# 1 ns of _CE does as well.
400  L   L      UUUUUUUU UUUUUUUU
401  L   H      UUUUUUUU UUUUUUUU
410  L   H      UUUUUUUU UUUUUUUU
411  L   H      ZZZZZZZZ ZZZZZZZZ
419  L   H      ZZZZZZZZ ZZZZZZZZ
420  L   H      43       43
# A pulse of 10 ns floats when the outputs would open, and that comes last.
500  L   L      UUUUUUUU UUUUUUUU
510  L   H      UUUUUUUU UUUUUUUU
519  L   H      UUUUUUUU UUUUUUUU
520  L   H      ZZZZZZZZ ZZZZZZZZ
540  L   H      ZZZZZZZZ ZZZZZZZZ
# Short pulses of _OE end as they should.
600  H   H      ZZZZZZZZ ZZZZZZZZ
610  H   L      ZZZZZZZZ ZZZZZZZZ
700  L   L      UUUUUUUU UUUUUUUU
705  H   L      UUUUUUUU UUUUUUUU
710  H   L      UUUUUUUU UUUUUUUU
711  H   L      43       43
714  H   L      43       43
715  H   L      ZZZZZZZZ ZZZZZZZZ
800  L   L      UUUUUUUU UUUUUUUU
801  H   L      UUUUUUUU UUUUUUUU
810  H   L      UUUUUUUU UUUUUUUU
811  H   L      ZZZZZZZZ ZZZZZZZZ
830  H   L      ZZZZZZZZ ZZZZZZZZ
# A second fall when the first one opens: opening comes last. The rise between them closes 10 ns behind it.
900  L   L      UUUUUUUU UUUUUUUU
905  H   L      UUUUUUUU UUUUUUUU
910  H   L      UUUUUUUU UUUUUUUU
911  L   L      43       43
914  L   L      43       43
915  L   L      ZZZZZZZZ ZZZZZZZZ
921  L   L      ZZZZZZZZ ZZZZZZZZ
922  L   L      43       43
