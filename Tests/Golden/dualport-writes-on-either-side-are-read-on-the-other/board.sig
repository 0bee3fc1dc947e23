_CEL = L
_CER = L
time AL  DL _GL RWL _OEL AR  DR _GR RWR _OER => ram.IOL  ram.IOR  ram.BUSYL ram.BUSYR
# The left side writes 5A at 123.
0    123 5A H   H   H    000 C3 H   H   H       UUUUUUUU UUUUUUUU U         U
19   123 5A H   H   H    000 C3 H   H   H       ZZZZZZZZ ZZZZZZZZ U         U
20   123 5A H   H   H    000 C3 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
100  123 5A L   L   H    000 C3 H   H   H       5A       ZZZZZZZZ H         H
130  123 5A L   H   H    000 C3 H   H   H       5A       ZZZZZZZZ H         H
140  123 5A H   H   H    000 C3 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
# The right side reads it.
200  123 5A H   H   H    123 C3 H   H   L       ZZZZZZZZ UUUUUUUU H         H
219  123 5A H   H   H    123 C3 H   H   L       ZZZZZZZZ UUUUUUUU H         H
220  123 5A H   H   H    123 C3 H   H   L       ZZZZZZZZ 5A       H         H
240  123 5A H   H   H    123 C3 H   H   H       ZZZZZZZZ 5A       H         H
250  123 5A H   H   H    456 C3 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
# The right side writes C3 at 456.
400  123 5A H   H   H    456 C3 L   L   H       ZZZZZZZZ C3       H         H
430  123 5A H   H   H    456 C3 L   H   H       ZZZZZZZZ C3       H         H
440  123 5A H   H   H    456 C3 H   H   H       ZZZZZZZZ ZZZZZZZZ H         H
# Both read it, at once: the right side's word was ready behind the disabled output.
500  456 5A H   H   L    456 C3 H   H   L       UUUUUUUU UUUUUUUU H         H
510  456 5A H   H   L    456 C3 H   H   L       UUUUUUUU UUUUUUUU H         H
511  456 5A H   H   L    456 C3 H   H   L       UUUUUUUU C3       H         H
519  456 5A H   H   L    456 C3 H   H   L       UUUUUUUU C3       H         H
520  456 5A H   H   L    456 C3 H   H   L       C3       C3       H         H
# What the left side wrote is still there.
600  123 5A H   H   L    123 C3 H   H   L       C3       C3       H         H
603  123 5A H   H   L    123 C3 H   H   L       UUUUUUUU UUUUUUUU H         H
620  123 5A H   H   L    123 C3 H   H   L       5A       5A       H         H
