# A line is a cycle, looked at 10 ns before it ends. The first processor ticks at its beginning, the second 50 ns and the
# MOS6502 120 ns later.
time  _RES1 _RES2 _RESN => first.A second.A nmos.A
390   H     H     H        0000    0000     0100
1590  H     H     H        EAEA    EAEA     EAEB
# a flank of each with _RES low makes two: the next flank that finds it high is that of the first
1790  L     L     H        EAEB    EAEB     EAEB
1990  H     H     H        EAEB    EAEB     EAEC
2190  H     H     H        0000    EAEC     EAEC
2390  H     H     H        0100    EAEC     EAED
2590  H     H     H        01FF    EAED     EAED
3390  H     H     H        EAEA    EAEF     EAEF
3990  H     H     H        EAEC    EAF0     EAF1
# and here it is that of the second
4040  L     L     H        EAEC    EAF0     EAF1
4190  L     L     H        EAEC    EAF1     EAF1
4240  H     H     H        EAED    EAF1     EAF1
4390  H     H     H        EAED    0000     EAF2
4590  H     H     H        EAED    0100     EAF2
5590  H     H     H        EAF0    EAEA     EAF5
# two flanks of the first, but the second finds its own _RES high between them
5790  L     H     H        EAF0    EAEB     EAF5
5990  L     H     H        EAF1    EAEB     EAF6
6190  H     H     H        EAF1    EAEC     EAF6
6390  H     H     H        EAF2    EAEC     EAF7
6590  H     H     H        EAF2    EAED     EAF7
# the same while the _RES of the second is neither
6990  L     U     H        EAF3    EAEE     EAF8
7190  L     U     H        EAF4    EAEE     EAF9
7390  H     U     H        EAF4    EAEF     EAF9
7590  H     U     H        0000    EAEF     EAFA
7790  H     H     H        0100    EAF0     EAFA
8390  H     H     H        FFFC    EAF1     EAFC
# the MOS6502 counts for itself
8590  H     H     L        FFFD    EAF2     EAFC
8790  H     H     L        EAEA    EAF2     EAFD
8990  H     H     H        EAEB    EAF3     EAFD
9190  H     H     H        EAEB    EAF3     0000
9390  H     H     H        EAEC    EAF4     0100
10390 H     H     H        EAEE    EAF6     EAEA
