j(out=2, a=1:0, delay=5)
s(b=9)
p(size, r=3:0)
time a => joined bit mirrored
0    1    1      H   8
10   C    C      L   3
20   B    B      H   D
