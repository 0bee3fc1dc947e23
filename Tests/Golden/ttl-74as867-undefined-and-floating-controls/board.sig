# Each look at an undefined letter is logged, undoes the count, and lasts until the clear. After the clock it takes two looks,
# since the former level counts as well.
time S1 S0 _ENT _ENP CLK HA ==(dT)=> QHA      _RCO

0    L  L  L    L    L   00 16       UUUUUUUU U
100  L  L  L    L    L   01 16       00       H
200  L  U  L    L    L   01 16       UUUUUUUU U
300  L  L  L    L    L   01 16       00       H
400  U  L  L    L    L   01 16       UUUUUUUU U
500  L  L  L    L    L   01 16       00       H
600  L  L  U    L    L   01 16       UUUUUUUU U
700  L  L  L    L    L   01 16       00       H
800  L  L  L    U    L   01 16       UUUUUUUU U
900  L  L  L    L    L   01 16       00       H
1000 L  L  L    L    U   01 16       UUUUUUUU U
1100 L  L  L    L    L   01 16       UUUUUUUU U
1200 L  L  L    L    L   02 16       00       H
# floating nets
1300 L  Z  L    L    L   02 16       UUUUUUUU U
1400 L  L  L    L    L   02 16       00       H
1500 L  L  Z    L    L   02 16       UUUUUUUU U
1600 L  L  L    L    L   02 16       00       H
1700 L  L  L    L    Z   02 16       UUUUUUUU U
1800 L  L  L    L    H   02 16       UUUUUUUU U
1900 L  L  L    L    H   03 16       00       H
# three at once are one look
2000 Z  L  Z    Z    H   03 16       UUUUUUUU U
2100 L  L  L    L    H   03 16       00       H
# a held count is lost as well
2200 H  L  L    L    L   5A 16       00       H
2300 H  L  L    L    H   5A 16       5A       H
2400 H  H  U    H    H   5A 16       UUUUUUUU U
2500 H  H  H    H    H   5A 16       UUUUUUUU U
2600 H  L  H    H    L   5A 16       UUUUUUUU U
2700 H  L  H    H    H   5A 16       5A       H
