# The delay is read twice, by the new unit and when it takes its parameters, and counts as 0.
time clk _OE D  => Q
0    L   L   A5    UUUUUUUU
1    L   L   A5    UUUUUUUU
2    H   L   A5    A5
3    H   L   3C    A5
4    L   L   3C    A5
5    H   L   3C    3C
