time _SD1 _CD1 CP1 D1 _SD2 _CD2 CP2 D2 ==(dT)=> Q1 _Q1 Q2 _Q2
0    L    L    L   L  L    L    L   H  35       H  H   H  H
# the clock does nothing as long as they are low
100  L    L    H   L  L    L    H   H  35       H  H   H  H
200  L    L    L   L  L    L    L   H  35       H  H   H  H
# the first half released at once keeps both outputs high; the second is released to preset
300  H    H    L   L  L    H    L   H  35       H  H   H  L
# until the next clock
400  H    H    H   L  H    H    L   H  35       L  H   H  L
500  L    L    H   L  L    L    H   L  35       H  H   H  H
# the first released to clear, the second at once, with its clock high
600  H    L    H   L  H    H    H   L  35       L  H   H  H
700  H    H    H   L  H    H    L   L  35       L  H   H  H
800  H    H    L   H  H    H    H   L  35       L  H   L  H
900  H    H    H   H  H    H    H   L  35       H  L   L  H
