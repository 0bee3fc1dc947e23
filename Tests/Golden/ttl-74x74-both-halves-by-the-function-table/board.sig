time _SD1 _CD1 CP1 D1 _SD2 _CD2 CP2 D2 ==(dT)=> Q1 _Q1 Q2 _Q2
# clear the first half, preset the second
0    H    L    L   L  L    H    L   L  35       L  H   H  L
100  H    H    L   H  L    H    L   L  35       L  H   H  L
# clock the first
200  H    H    H   H  H    H    L   L  35       H  L   H  L
# clock the second; the first holds at the high level
300  H    H    H   L  H    H    H   L  35       H  L   L  H
400  H    H    L   L  H    H    H   H  35       H  L   L  H
500  H    H    H   L  H    H    L   H  35       L  H   L  H
600  H    H    H   H  H    H    H   H  35       L  H   H  L
# both inputs of the first low, the second holds
700  L    L    H   H  H    H    H   H  35       H  H   H  L
# the second is cleared, and preset, whatever its clock does
800  L    L    L   L  H    L    H   H  35       H  H   L  H
900  L    L    H   L  H    L    L   H  35       H  H   L  H
1000 L    H    H   L  H    L    H   H  35       H  L   L  H
1100 H    L    H   L  L    L    H   H  35       L  H   H  H
# released at a high clock: the first keeps its bit, the second goes from both-low to preset
1200 H    H    H   H  L    H    H   H  35       L  H   H  L
1300 H    H    L   H  H    H    H   L  35       L  H   H  L
