# Each has a state and the times of its own.
time clk1 clk2 => A1               A2
0    L    L       UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
100  H    H       UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
200  L    L       UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
204  L    L       UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
205  L    L       UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
259  L    L       UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
260  L    L       0000             0000
# two has no fall here
300  H    L       0000             0000
400  L    L       0000             0000
459  L    L       UUUUUUUUUUUUUUUU 0000
460  L    L       0100             0000
# nor one here
500  L    H       0100             0000
600  L    L       0100             0000
659  L    L       0100             UUUUUUUUUUUUUUUU
660  L    L       0100             0100
700  H    H       0100             0100
800  L    H       0100             0100
859  L    H       UUUUUUUUUUUUUUUU 0100
860  L    H       01FF             0100
900  L    L       01FF             0100
904  L    L       01FF             0100
905  L    L       01FF             UUUUUUUUUUUUUUUU
959  L    L       01FF             UUUUUUUUUUUUUUUU
960  L    L       01FF             01FF
