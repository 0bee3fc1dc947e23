time _CD CP D ==(dT)=> Q _Q
0    L   L  H 35       L H
100  H   L  H 35       L H
200  H   H  H 35       H L
300  H   H  L 35       H L
400  H   L  L 35       H L
# an undefined level, from and to
500  H   U  L 35       U U
600  H   H  L 35       U U
# the flank to low writes nothing: the outputs stay undefined
700  H   L  L 35       U U
800  H   H  L 35       L H
900  H   L  H 35       L H
# a floating net likewise
1000 H   Z  H 35       U U
1100 H   H  H 35       U U
1200 H   L  H 35       U U
1300 H   H  H 35       H L
1400 H   Z  H 35       U U
1500 H   L  H 35       U U
1600 H   H  H 35       H L
1700 H   X  H 35       U U
1800 H   H  H 35       U U
1900 H   L  L 35       U U
2000 H   H  L 35       L H
