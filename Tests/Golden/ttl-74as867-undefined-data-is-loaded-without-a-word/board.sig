time S1 S0 _ENT _ENP CLK HA       ==(dT)=> QHA      _RCO

0    H  L  H    H    L   00       16       UUUUUUUU U
100  H  L  H    H    H   HLUZHLUZ 16       HLUUHLUU U
200  H  L  H    H    L   7F       16       HLUUHLUU U
300  H  L  H    H    H   7F       16       7F       H
400  H  L  H    H    L   LLLLLLLU 16       7F       H
500  H  L  H    H    H   LLLLLLLU 16       LLLLLLLU U
# neither end is known
600  L  H  H    H    H   LLLLLLLU 16       LLLLLLLU U
700  H  H  H    H    H   LLLLLLLU 16       LLLLLLLU U
800  L  L  H    H    H   LLLLLLLU 16       00       H
