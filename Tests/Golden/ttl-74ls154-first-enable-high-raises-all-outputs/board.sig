time D C B A _G1 _G2 ==(dT)=> Y                Y0 Y1 Y2 Y3 Y4 Y5 Y6 Y7 Y8 Y9 Y10 Y11 Y12 Y13 Y14 Y15
0    L L L L L   L   23       HHHHHHHHHHHHHHHL L  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
100  L L L L H   L   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
200  L L L H H   L   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
300  L L L L H   L   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
400  H H H H H   L   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
500  H H H L H   L   23       HHHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   H   H
600  H H H L L   L   23       HLHHHHHHHHHHHHHH H  H  H  H  H  H  H  H  H  H  H   H   H   H   L   H
