# quick
u1(fast=true)

time    a ==(dT)=>    ~q r 
0000    U     5    LLLLZ H 
0010    L     5        H H 
