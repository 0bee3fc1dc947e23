time u.x u.S ==(dT)=> u.Y
0    L   HL         10 HLHH
20   L   HZ         10 LHHH
