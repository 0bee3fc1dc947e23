time g.a => b
0 L X
