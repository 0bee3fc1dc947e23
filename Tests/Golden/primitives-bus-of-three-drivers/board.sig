# Nobody drives.
time a    b c _ga _gb _gc ==(dT)=> bus  seen
0    5    A C H   H   H   10       ZZZZ UUUU
# One after the other.
20   5    A C L   H   H   10       5    5
40   5    A C H   L   H   10       A    A
60   5    A C H   H   L   10       C    C
80   6    A C H   H   L   10       C    C
# Two or three at a time are contention, on every bit and even if they agree.
100  5    A C L   L   H   10       UUUU UUUU
120  5    A C L   H   H   10       5    5
140  5    5 C L   L   H   10       UUUU UUUU
160  5    5 5 L   L   L   10       UUUU UUUU
180  5    5 3 H   H   L   10       3    3
# A driver with an undefined gate drives, so it disturbs the others.
200  5    5 3 H   U   H   10       UUUU UUUU
220  5    5 3 L   U   H   10       UUUU UUUU
240  5    5 3 L   H   H   10       5    5
# A gate that floats is undefined.
260  5    9 3 H   L   Z   10       UUUU UUUU
280  5    9 3 H   L   H   10       9    9
# Undefined data of the one driver.
300  HLZU 9 3 L   H   H   10       HLUU HLUU
320  HLZU 9 3 H   H   H   10       ZZZZ UUUU
