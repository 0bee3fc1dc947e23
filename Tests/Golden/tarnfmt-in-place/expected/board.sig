time g.a => b 
0000   L    X 
