# words.bin holds 11 22 33 44.
ram(delay=50)
time WR Din => ram.Dout other.Dout
0    L  99     UUUUUUUU UUUUUUUU
20   L  99     UUUUUUUU UUUUUUUU
21   L  99     UUUUUUUU 22
50   L  99     UUUUUUUU 22
51   L  99     22       22
# a write of 100 ns
100  H  99     22       22
120  H  99     22       22
121  H  99     22       ZZZZZZZZ
150  H  99     22       ZZZZZZZZ
151  H  99     ZZZZZZZZ ZZZZZZZZ
200  L  99     ZZZZZZZZ ZZZZZZZZ
220  L  99     ZZZZZZZZ ZZZZZZZZ
221  L  99     ZZZZZZZZ 99
250  L  99     ZZZZZZZZ 99
251  L  99     99       99
# one of 30 ns: when ram reads at 381 it looks at 331, where its own write of 351 has yet to come
300  H  66     99       99
320  H  66     99       99
321  H  66     99       ZZZZZZZZ
330  L  66     99       ZZZZZZZZ
350  L  66     99       ZZZZZZZZ
351  L  66     ZZZZZZZZ 66
380  L  66     ZZZZZZZZ 66
381  L  66     99       66
# the edge of the data has scheduled another look for 420
400  L  00     99       66
419  L  00     99       66
420  L  00     66       66
