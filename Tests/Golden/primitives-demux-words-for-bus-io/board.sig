time x S s1 s0 ==(dT)=> Y_yes Y_1  Y_TRUE y2_none y2_no y2_0 y2_False y2_on y2_bare
0    L 2 H  L  10       HLHH  HLHH HLHH   L       L     L    L        L     L
20   L 1 L  H  10       HHLH  HHLH HHLH   H       H     H    H        H     H
40   L 2 H  L  10       HLHH  HLHH HLHH   L       L     L    L        L     L
60   H 2 H  L  10       HHHH  HHHH HHHH   H       H     H    H        H     H
