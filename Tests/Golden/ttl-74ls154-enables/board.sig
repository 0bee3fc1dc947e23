time D C B A _G1 _G2 ==(dT)=> Y                Y0 Y1 Y2 Y3 Y4 Y5 Y6 Y7 Y8 Y9 Y10 Y11 Y12 Y13 Y14 Y15
0    L H L H L   L   23       HHHHHHHHHHLHHHHH H  H  H  H  H  L  H  H  H  H  H   H   H   H   H   H
100  L H L H L   H   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
200  L H L H H   L   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
300  L H L H H   H   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
400  L H L H L   L   23       HHHHHHHHHHLHHHHH H  H  H  H  H  L  H  H  H  H  H   H   H   H   H   H
# disabled, whatever the address
500  L L L L H   L   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
600  H H H L L   H   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
700  H H H H H   H   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
800  L H L H L   L   23       HHHHHHHHHHLHHHHH H  H  H  H  H  L  H  H  H  H  H   H   H   H   H   H
# an undefined enable, unless both are low
900  L H L H U   L   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1000 L H L H L   U   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1100 L H L H U   H   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1200 L H L H H   U   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1300 L H L H U   U   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1400 L H L H L   L   23       HHHHHHHHHHLHHHHH H  H  H  H  H  L  H  H  H  H  H   H   H   H   H   H
# a floating one likewise
1500 L H L H Z   L   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1600 L H L H L   Z   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1700 L H L H Z   H   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1800 L H L H H   Z   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
1900 L H L H Z   Z   23       UUUUUUUUUUUUUUUU U  U  U  U  U  U  U  U  U  U  U   U   U   U   U   U
2000 L H L H H   H   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
2100 L H L H L   L   23       HHHHHHHHHHLHHHHH H  H  H  H  H  L  H  H  H  H  H   H   H   H   H   H
