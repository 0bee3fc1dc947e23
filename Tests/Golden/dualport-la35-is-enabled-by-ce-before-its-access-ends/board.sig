AL = 03
_CER = L
time _CEL AR  DR _GR RWR => q35      q25
# The left sides read 43 and are disabled; meanwhile the right ones write 99 there.
0    L    000 99 H   H      UUUUUUUU UUUUUUUU
35   L    000 99 H   H      43       43
100  H    000 99 H   H      43       43
115  H    000 99 H   H      ZZZZZZZZ ZZZZZZZZ
200  H    003 99 H   H      ZZZZZZZZ ZZZZZZZZ
250  H    003 99 L   L      ZZZZZZZZ ZZZZZZZZ
290  H    003 99 L   H      ZZZZZZZZ ZZZZZZZZ
300  H    000 99 H   H      ZZZZZZZZ ZZZZZZZZ
# _CE falls. The LA35 opens after 20 ns with the former word, the LA25 after its access time.
400  L    000 99 H   H      UUUUUUUU UUUUUUUU
419  L    000 99 H   H      UUUUUUUU UUUUUUUU
420  L    000 99 H   H      43       UUUUUUUU
424  L    000 99 H   H      43       UUUUUUUU
425  L    000 99 H   H      43       99
434  L    000 99 H   H      43       99
435  L    000 99 H   H      99       99
