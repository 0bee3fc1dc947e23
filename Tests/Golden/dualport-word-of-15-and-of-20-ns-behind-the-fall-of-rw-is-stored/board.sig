time AL  ram.IOL RWL AR  => qR
# RW is low for 16 ns: the word of 15 ns behind its fall is stored.
0    001 00      H   000    UUUUUUUU
100  001 11      L   000    UUUUUUUU
114  001 22      L   000    UUUUUUUU
115  001 33      L   000    UUUUUUUU
116  001 44      H   000    UUUUUUUU
# For 20 ns: the same.
150  002 44      H   000    UUUUUUUU
200  002 11      L   000    UUUUUUUU
214  002 22      L   000    UUUUUUUU
215  002 33      L   000    UUUUUUUU
216  002 44      L   000    UUUUUUUU
220  002 55      H   000    UUUUUUUU
# For 21 ns: the word of 20 ns behind its fall.
250  003 55      H   000    UUUUUUUU
300  003 11      L   000    UUUUUUUU
315  003 33      L   000    UUUUUUUU
319  003 55      L   000    UUUUUUUU
320  003 66      L   000    UUUUUUUU
321  003 77      H   000    UUUUUUUU
# For longer: what comes later isn't stored, not even at the rise.
350  004 77      H   000    UUUUUUUU
400  004 11      L   000    UUUUUUUU
420  004 88      L   000    UUUUUUUU
421  004 99      L   000    UUUUUUUU
480  004 AA      L   000    UUUUUUUU
500  004 BB      H   000    UUUUUUUU
# The four words.
600  004 BB      H   001    UUUUUUUU
620  004 BB      H   001    33
650  004 BB      H   002    33
670  004 BB      H   002    33
700  004 BB      H   003    33
720  004 BB      H   003    66
750  004 BB      H   004    66
770  004 BB      H   004    88
