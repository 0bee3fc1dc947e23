time _CLR clock _enable ==(dT)=> bit byte
0    L    L     L       38       L   00
100  H    L     L       38       L   00
200  H    H     L       38       H   5A
# the buffer lets go
300  H    H     H       38       U   5A
400  H    L     H       38       U   5A
# and drives again
500  H    L     L       38       U   5A
600  H    H     L       38       H   5A
# what rises out of nothing is no clock
700  L    H     H       38       L   00
800  H    H     H       38       U   00
900  H    H     L       38       U   00
1000 H    L     L       38       U   00
1100 H    H     L       38       H   5A
