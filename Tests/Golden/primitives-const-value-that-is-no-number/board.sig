time idle => word.out none.out sign.out good.out
0    L       LLLLLLLL LLLLLLLL LLLLLLLL LLLLLHHL
100  H       LLLLLLLL LLLLLLLL LLLLLLLL LLLLLHHL
