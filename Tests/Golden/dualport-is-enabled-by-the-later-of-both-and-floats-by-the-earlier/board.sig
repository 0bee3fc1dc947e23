A = 03
time _OE _CE => qL       qR
# _OE first, then _CE.
0    H   H      UUUUUUUU UUUUUUUU
10   H   H      ZZZZZZZZ ZZZZZZZZ
100  L   H      ZZZZZZZZ ZZZZZZZZ
111  L   H      ZZZZZZZZ ZZZZZZZZ
200  L   L      UUUUUUUU UUUUUUUU
211  L   L      UUUUUUUU UUUUUUUU
219  L   L      UUUUUUUU UUUUUUUU
220  L   L      43       43
# Off by _CE: _OE behind it changes nothing.
300  L   H      43       43
305  H   H      43       43
309  H   H      43       43
310  H   H      ZZZZZZZZ ZZZZZZZZ
315  H   H      ZZZZZZZZ ZZZZZZZZ
# _CE first, then _OE.
400  H   L      ZZZZZZZZ ZZZZZZZZ
420  H   L      ZZZZZZZZ ZZZZZZZZ
450  L   L      UUUUUUUU UUUUUUUU
460  L   L      UUUUUUUU UUUUUUUU
461  L   L      43       43
# Off by _OE: _CE behind it changes nothing.
500  H   L      43       43
505  H   H      43       43
509  H   H      43       43
510  H   H      ZZZZZZZZ ZZZZZZZZ
515  H   H      ZZZZZZZZ ZZZZZZZZ
# Off by _OE and by _CE at once.
600  H   L      ZZZZZZZZ ZZZZZZZZ
620  L   L      UUUUUUUU UUUUUUUU
631  L   L      43       43
700  H   H      43       43
709  H   H      43       43
710  H   H      ZZZZZZZZ ZZZZZZZZ
# A second rise behind the first finds them off.
720  L   H      ZZZZZZZZ ZZZZZZZZ
731  L   H      ZZZZZZZZ ZZZZZZZZ
740  H   H      ZZZZZZZZ ZZZZZZZZ
750  H   H      ZZZZZZZZ ZZZZZZZZ
