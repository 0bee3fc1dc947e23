# A low fall of either counts, and a high fall of either clears.
time  _RES1 _RES2 => A1               A2
0     H     H        UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
6250  H     H        FFFD             FFFD
6750  H     H        EAEA             FFFD
7250  H     H        EAEA             EAEA
7750  H     H        EAEB             EAEA
# cpu1 low for three falls, but cpu2 clears the count between them
8250  L     H        EAEB             EAEB
8750  L     H        EAEB             EAEB
9250  L     H        EAEB             EAEB
9750  L     H        EAEC             EAEB
10250 L     H        EAEC             EAEC
10750 H     H        EAEC             EAEC
11250 H     H        EAEC             EAEC
# without a level at cpu2 the count stands: low for two falls of cpu1
11750 L     U        EAED             EAEC
12250 L     U        EAED             EAED
12750 L     U        EAED             EAED
13250 L     U        EAED             EAED
# and cpu2, never low, is the one that is reset
13750 L     H        EAEE             EAED
14250 L     H        EAEE             0000
14750 H     U        EAEE             0000
15250 H     U        EAEE             0100
# two falls of cpu1 again, and its own reset
15750 L     U        EAEF             0100
16250 L     U        EAEF             01FF
16750 L     U        EAEF             01FF
17250 L     U        EAEF             01FE
17750 H     U        EAF0             01FE
18250 H     U        EAF0             FFFC
18750 H     U        0000             FFFC
19250 H     U        0000             FFFD
19750 H     U        0100             FFFD
20250 H     U        0100             EAEA
20750 H     U        01FF             EAEA
21250 H     U        01FF             EAEB
