time S1 S0 _ENT _ENP CLK HA       ==(dT)=> QHA      _RCO

# nothing was loaded or cleared
0    H  H  L    L    L   00       16       UUUUUUUU U
100  H  H  L    L    H   00       16       UUUUUUUU U
200  H  H  L    L    L   00       16       UUUUUUUU U
300  H  H  L    L    H   00       16       UUUUUUUU U
400  L  H  L    L    L   00       16       UUUUUUUU U
500  L  H  L    L    H   00       16       UUUUUUUU U
# held, nothing is tried
600  L  H  H    L    L   00       16       UUUUUUUU U
700  L  H  H    L    H   00       16       UUUUUUUU U
800  L  H  L    H    L   00       16       UUUUUUUU U
900  H  H  L    H    H   00       16       UUUUUUUU U
# a value known in part
1000 H  L  L    L    L   HLUZLLLL 16       UUUUUUUU U
1100 H  L  L    L    H   HLUZLLLL 16       HLUULLLL U
1200 H  H  L    L    L   7F       16       HLUULLLL U
1300 H  H  L    L    H   7F       16       HLUULLLL U
1400 L  H  L    L    L   7F       16       HLUULLLL U
1500 L  H  L    L    H   7F       16       HLUULLLL U
# a known one
1600 H  L  L    L    L   7F       16       HLUULLLL U
1700 H  L  L    L    H   7F       16       7F       H
1800 H  H  L    L    L   7F       16       7F       H
1900 H  H  L    L    H   7F       16       80       H
2000 L  H  L    L    L   7F       16       80       H
2100 L  H  L    L    H   7F       16       7F       H
