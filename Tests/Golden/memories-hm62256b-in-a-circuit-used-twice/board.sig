# words.bin holds 11 22 33 44. Nets floating at Z are read as undefined.
time A D  _W1 _W2 => Q1       Q2
0    0 00 H   H      11       11
10   0 AA L   H      UUUUUUUU 11
20   0 AA H   H      AA       11
30   1 BB H   L      22       UUUUUUUU
40   1 BB H   H      22       BB
50   0 BB H   H      AA       11
60   1 CC L   L      UUUUUUUU UUUUUUUU
70   1 DD H   H      CC       CC
80   0 DD H   H      AA       11
