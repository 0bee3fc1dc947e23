time S1 S0 _ENT _ENP CLK HA ==(dT)=> QHA      _RCO

0    L  L  H    H    L   00 16       UUUUUUUU U
100  L  L  H    H    L   FF 16       00       H
# at zero: when counting down, enabled or not
200  L  H  H    H    L   FF 16       00       L
300  L  H  L    L    L   FF 16       00       L
400  H  H  L    L    L   FF 16       00       H
500  H  L  L    L    L   FF 16       00       H
# at 255: when counting up
600  H  L  L    L    H   FF 16       FF       H
700  H  H  L    L    H   FF 16       FF       L
800  H  H  H    H    H   FF 16       FF       L
900  L  H  H    H    H   FF 16       FF       H
1000 H  L  H    H    H   FF 16       FF       H
1100 H  H  L    L    L   FF 16       FF       L
1200 H  H  L    L    H   FF 16       00       H
# and over the other end
1300 L  H  L    L    L   FF 16       00       L
1400 L  H  L    L    H   FF 16       FF       H
1500 L  L  L    L    H   FF 16       00       H
# one beside the ends, never
1600 H  L  L    L    L   FE 16       00       H
1700 H  L  L    L    H   FE 16       FE       H
1800 H  H  L    L    H   FE 16       FE       H
1900 L  H  L    L    H   FE 16       FE       H
2000 H  L  L    L    L   01 16       FE       H
2100 H  L  L    L    H   01 16       01       H
2200 H  H  L    L    H   01 16       01       H
2300 L  H  L    L    H   01 16       01       H
