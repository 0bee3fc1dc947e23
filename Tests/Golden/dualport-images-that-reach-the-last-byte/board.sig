time A   _OE => q0       q1
0    000 L      UUUUUUUU UUUUUUUU
20   000 L      00       UUUUUUUU
50   001 L      00       UUUUUUUU
70   001 L      07       UUUUUUUU
100  155 L      07       UUUUUUUU
120  155 L      54       UUUUUUUU
150  3FF L      54       UUUUUUUU
170  3FF L      FC       UUUUUUUU
200  400 L      FC       UUUUUUUU
220  400 L      04       UUUUUUUU
250  6AA L      04       UUUUUUUU
270  6AA L      AC       UUUUUUUU
300  7FE L      AC       UUUUUUUU
320  7FE L      F9       59
350  7FF L      F9       59
370  7FF L      00       5A
