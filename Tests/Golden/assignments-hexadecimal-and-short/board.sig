b = A
c = HL
d = Z
time a => bq cq dq
0 0 LLLLHLHL LLLLLLHL UUUUUUUU
