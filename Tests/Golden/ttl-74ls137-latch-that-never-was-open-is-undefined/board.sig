time C B A _GL G1 _G2 ==(dT)=> Y
0    H L L H   H  L   38       UUUUUUUU
100  L L H H   H  L   38       UUUUUUUU
# disabled
200  L L H H   L  L   38       HHHHHHHH
300  L L H H   H  H   38       HHHHHHHH
400  L L H H   H  L   38       UUUUUUUU
# the lines that an undefined enable pulls low do not need the latch
500  L L H H   U  L   38       HHHHHHLH
600  L H L H   H  U   38       HHHHHLHH
700  L H L H   H  L   38       UUUUUUUU
# an undefined or floating _GL has not opened it
800  L H L U   H  L   38       HHHHHHHH
900  L H L Z   H  L   38       HHHHHHHH
1000 L H L H   H  L   38       UUUUUUUU
# opened at last, while disabled
1100 H H H L   L  L   38       HHHHHHHH
1200 L H L H   L  L   38       HHHHHHHH
1300 L H L H   H  L   38       LHHHHHHH
1400 L L L H   H  L   38       LHHHHHHH
