# Both RAMs are LA20 on the board.
behind(device=LA55)
bare(device=LA55)
time A   _OE _CE => via      direct
# What comes through the buffers happens in the run, and so in the LA55's times. What the signal file does to pins itself was
# announced in the LA20's times before: looks that find nothing.
0    003 H   H      UUUUUUUU UUUUUUUU
10   003 H   H      UUUUUUUU UUUUUUUU
24   003 H   H      UUUUUUUU UUUUUUUU
25   003 H   H      ZZZZZZZZ UUUUUUUU
100  003 H   L      ZZZZZZZZ UUUUUUUU
160  003 H   L      ZZZZZZZZ UUUUUUUU
200  003 L   L      ZZZZZZZZ UUUUUUUU
204  003 L   L      ZZZZZZZZ UUUUUUUU
205  003 L   L      UUUUUUUU UUUUUUUU
224  003 L   L      UUUUUUUU UUUUUUUU
225  003 L   L      43       UUUUUUUU
300  003 H   L      43       UUUUUUUU
310  003 H   L      43       UUUUUUUU
324  003 H   L      43       UUUUUUUU
325  003 H   L      ZZZZZZZZ UUUUUUUU
# Two falls of _OE 14 ns apart: the second one's look at 11 ns finds the first one 25 ns back.
400  003 L   L      ZZZZZZZZ UUUUUUUU
405  003 L   L      UUUUUUUU UUUUUUUU
411  003 U   L      UUUUUUUU UUUUUUUU
414  003 L   L      UUUUUUUU UUUUUUUU
424  003 L   L      UUUUUUUU UUUUUUUU
425  003 L   L      43       43
450  003 L   L      43       43
# Another address: undefined after 3 ns in both, and read by the LA55's look only.
500  004 L   L      43       43
503  004 L   L      UUUUUUUU UUUUUUUU
520  004 L   L      UUUUUUUU UUUUUUUU
554  004 L   L      UUUUUUUU UUUUUUUU
555  004 L   L      44       UUUUUUUU
600  004 L   L      44       UUUUUUUU
