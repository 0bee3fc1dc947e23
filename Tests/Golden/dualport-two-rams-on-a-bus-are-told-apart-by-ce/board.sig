time A   D  _G RW _OE _CE0 _CE1 => bus
# Reading out of the first RAM, then out of the second one.
0    001 00 H  H  L   L    H       UUUUUUUU
9    001 00 H  H  L   L    H       UUUUUUUU
10   001 00 H  H  L   L    H       UUUUUUUU
19   001 00 H  H  L   L    H       UUUUUUUU
20   001 00 H  H  L   L    H       41
# One _CE falls when the other rises: both drive for 10 ns, the new word is there after 20.
100  001 00 H  H  L   H    L       UUUUUUUU
110  001 00 H  H  L   H    L       UUUUUUUU
119  001 00 H  H  L   H    L       UUUUUUUU
120  001 00 H  H  L   H    L       61
# With a gap of 10 ns the bus is free when the second begins to drive.
200  001 00 H  H  L   H    H       61
209  001 00 H  H  L   H    H       61
210  001 00 H  H  L   L    H       UUUUUUUU
229  001 00 H  H  L   L    H       UUUUUUUU
230  001 00 H  H  L   L    H       41
300  001 00 H  H  L   H    H       41
310  001 00 H  H  L   H    H       ZZZZZZZZ
320  001 00 H  H  L   H    L       UUUUUUUU
340  001 00 H  H  L   H    L       61
400  001 00 H  H  L   H    H       61
410  001 00 H  H  L   H    H       ZZZZZZZZ
# Both at once.
500  001 00 H  H  L   L    L       UUUUUUUU
520  001 00 H  H  L   L    L       UUUUUUUU
560  001 00 H  H  L   L    L       UUUUUUUU
600  001 00 H  H  L   H    L       UUUUUUUU
609  001 00 H  H  L   H    L       UUUUUUUU
610  001 00 H  H  L   H    L       61
620  001 00 H  H  L   H    H       61
630  001 00 H  H  L   H    H       ZZZZZZZZ
# The first RAM alone is written, then both.
700  002 00 H  H  H   H    H       ZZZZZZZZ
720  002 C3 L  H  H   H    H       C3
730  002 C3 L  H  H   L    H       C3
750  002 C3 L  L  H   L    H       C3
770  002 C3 L  H  H   L    H       C3
780  003 C3 L  H  H   L    L       C3
800  003 C3 L  L  H   L    L       C3
820  003 C3 L  H  H   L    L       C3
830  003 C3 H  H  H   H    H       ZZZZZZZZ
900  002 C3 H  H  L   L    H       UUUUUUUU
920  002 C3 H  H  L   L    H       C3
950  003 C3 H  H  L   L    H       C3
970  003 C3 H  H  L   L    H       C3
1000 003 C3 H  H  L   H    H       C3
1010 003 C3 H  H  L   H    H       ZZZZZZZZ
1020 002 C3 H  H  L   H    L       UUUUUUUU
1040 002 C3 H  H  L   H    L       62
1050 003 C3 H  H  L   H    L       62
1070 003 C3 H  H  L   H    L       C3
