# Undefined data leave the last byte: the late one ends at 2222, which jams.
time  _OE => A_just           sync_just A_late           sync_late
0     L      UUUUUUUUUUUUUUUU U         UUUUUUUUUUUUUUUU U
600   L      0000             L         0000             L
1600  L      0100             L         0100             L
2600  L      01FF             L         01FF             L
3600  L      01FE             L         01FE             L
4600  L      FFFC             L         FFFC             L
5600  L      FFFD             L         FFFD             L
6600  L      E000             H         2222             H
7600  L      E001             L         2223             L
8600  L      E001             H         FFFF             L
9600  L      E002             L         FFFF             L
10600 L      E003             L         FFFF             L
11600 L      E000             H         FFFF             L
12600 L      E001             L         FFFF             L
13600 L      E001             H         FFFF             L
