time AL  D        RWL _OEL AR  => bus      q
# The board's port was set when nothing had switched the RAM off yet: where a vector sets it, two drive, up to the RAM's next look.
0    001 11       H   H    000    UUUUUUUU UUUUUUUU
10   001 11       H   H    000    11       UUUUUUUU
20   001 11       H   H    000    11       40
21   001 11       H   H    000    UUUUUUUU 40
# Between the looks at 110 and 115 there is no vector: the word is stored.
100  001 11       L   H    000    UUUUUUUU 40
110  001 11       L   H    000    11       40
117  001 11       H   H    000    UUUUUUUU 40
127  001 11       H   H    000    11       40
131  001 11       H   H    000    UUUUUUUU 40
# A vector at 212, between those looks: undefined bits are stored.
150  002 22       H   H    000    UUUUUUUU 40
200  002 22       L   H    000    UUUUUUUU 40
210  002 22       L   H    000    22       40
212  002 22       L   H    000    UUUUUUUU 40
217  002 22       H   H    000    UUUUUUUU 40
227  002 22       H   H    000    22       40
# Looks of the right side work, too.
250  002 22       H   H    000    UUUUUUUU 40
270  002 22       H   H    004    UUUUUUUU 40
273  002 22       H   H    004    22       UUUUUUUU
290  002 22       H   H    004    22       44
# A floating port is an undefined driver, and it never leaves the bus: the RAM's word can't be seen there.
300  001 ZZZZZZZZ H   H    004    UUUUUUUU 44
320  001 ZZZZZZZZ H   H    004    UUUUUUUU 44
340  001 ZZZZZZZZ H   L    004    UUUUUUUU 44
351  001 ZZZZZZZZ H   L    004    UUUUUUUU 44
400  001 ZZZZZZZZ H   H    004    UUUUUUUU 44
410  001 ZZZZZZZZ H   H    004    UUUUUUUU 44
# On the other side it can.
500  001 ZZZZZZZZ H   H    001    UUUUUUUU 44
520  001 ZZZZZZZZ H   H    001    UUUUUUUU 11
550  001 ZZZZZZZZ H   H    002    UUUUUUUU 11
553  001 ZZZZZZZZ H   H    002    UUUUUUUU UUUUUUUU
570  001 ZZZZZZZZ H   H    002    UUUUUUUU UUUUUUUU
600  001 ZZZZZZZZ H   H    003    UUUUUUUU UUUUUUUU
620  001 ZZZZZZZZ H   H    003    UUUUUUUU 43
