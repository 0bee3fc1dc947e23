_CEL = L
time AL  DL _GL RWL _OEL AR  DR _GR RWR _OER _CER => ram.IOL  ram.IOR  ram.BUSYR
# The left side writes 11 at 5, again and again. The right one is there too and reads: each look for a write warns, which
# _OE, _CE and RW of either side cause, and nothing is stored. Its reads are served.
0    005 11 H   H   H    002 22 H   H   H    L       UUUUUUUU UUUUUUUU U
20   005 11 H   H   H    002 22 H   H   H    L       ZZZZZZZZ ZZZZZZZZ H
100  005 11 H   H   H    005 22 H   H   H    L       ZZZZZZZZ ZZZZZZZZ H
# Left RW: at 215, 220, and behind the rise at 260.
200  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ H
250  005 11 L   H   H    005 22 H   H   H    L       11       ZZZZZZZZ H
# Left RW low from 300 on: at 315 and 320. Right _OE: at 400 and 411, and at 460 behind its rise.
300  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ H
400  005 11 L   L   H    005 22 H   H   L    L       11       UUUUUUUU H
411  005 11 L   L   H    005 22 H   H   L    L       11       45       H
450  005 11 L   L   H    005 22 H   H   H    L       11       45       H
460  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ H
# Right _CE: at 510 behind its rise, and at 615 and 620 behind its fall; at 520 and 600 it looks back to where there was none.
500  005 11 L   L   H    005 22 H   H   H    H       11       ZZZZZZZZ H
600  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ H
619  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ H
620  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ L
# Right address: its looks are no looks for a write as long as the right RW is high.
700  005 11 L   L   H    006 22 H   H   H    L       11       ZZZZZZZZ L
723  005 11 L   L   H    006 22 H   H   H    L       11       ZZZZZZZZ H
800  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ H
820  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ L
# A right RW that is low for 5 ns: 10 and 20 ns behind each edge, and 15.
900  005 11 L   L   H    005 22 H   L   H    L       11       ZZZZZZZZ L
905  005 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ L
# The left address leaves: 3 ns behind it a look for a write at the old one, as the left RW is low.
1000 007 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ L
1023 007 11 L   L   H    005 22 H   H   H    L       11       ZZZZZZZZ H
1050 007 11 L   H   H    005 22 H   H   H    L       11       ZZZZZZZZ H
1060 007 11 H   H   H    005 22 H   H   H    L       ZZZZZZZZ ZZZZZZZZ H
1100 005 11 H   H   H    005 22 H   H   H    L       ZZZZZZZZ ZZZZZZZZ H
1200 005 11 H   H   L    005 22 H   H   L    L       UUUUUUUU UUUUUUUU H
1211 005 11 H   H   L    005 22 H   H   L    L       45       45       H
# While the right side was disabled, from 500 to 600, nothing looked at the left pins, so nothing was stored then either.
# Address 7 was written.
1300 007 11 H   H   L    005 22 H   H   L    L       45       45       H
1320 007 11 H   H   L    005 22 H   H   L    L       11       45       H
