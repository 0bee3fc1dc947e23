time S1 S0 _ENT _ENP CLK HA ==(dT)=> QHA      _RCO

# the clock has no past yet, so the first look finds it undefined
0    L  L  L    L    L   00 16       UUUUUUUU U
# clear
100  L  L  L    L    L   A5 16       00       H
# load at the clock; the enables don't matter
200  H  L  L    L    L   A5 16       00       H
300  H  L  L    L    H   A5 16       A5       H
400  H  L  L    L    L   3C 16       A5       H
500  H  L  H    H    H   3C 16       3C       H
# count up
600  H  H  L    L    L   00 16       3C       H
700  H  H  L    L    H   00 16       3D       H
800  H  H  L    L    L   00 16       3D       H
# count down
900  L  H  L    L    L   00 16       3D       H
1000 L  H  L    L    H   00 16       3C       H
# each enable must be low, down and up
1100 L  H  H    L    L   00 16       3C       H
1200 L  H  H    L    H   00 16       3C       H
1300 L  H  L    H    L   00 16       3C       H
1400 L  H  L    H    H   00 16       3C       H
1500 H  H  L    H    L   00 16       3C       H
1600 H  H  L    H    H   00 16       3C       H
1700 H  H  H    L    L   00 16       3C       H
1800 H  H  H    L    H   00 16       3C       H
1900 H  H  L    L    L   00 16       3C       H
2000 H  H  L    L    H   00 16       3D       H
# a new mode at a high clock waits for the next clock
2100 H  L  L    L    H   FE 16       3D       H
2200 L  H  L    L    H   FE 16       3D       H
2300 H  H  L    L    L   FE 16       3D       H
# clear waits for no clock and no enable
2400 L  L  H    H    L   FE 16       00       H
2500 L  L  H    H    H   FE 16       00       H
2600 H  L  H    H    H   FE 16       00       H
2700 H  L  H    H    L   FE 16       00       H
2800 H  L  H    H    H   FE 16       FE       H
2900 L  L  L    L    H   FE 16       00       H
