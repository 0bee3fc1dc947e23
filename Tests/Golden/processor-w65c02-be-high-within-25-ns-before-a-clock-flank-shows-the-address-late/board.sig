time  BE => cpu.A            cpu.R/W
0     H     UUUUUUUUUUUUUUUU U
# BE rises 20 ns before a flank: the old address at first, then the new one 5 ns late
7600  L     EAEA             H
7625  L     ZZZZZZZZZZZZZZZZ Z
7980  H     ZZZZZZZZZZZZZZZZ Z
8004  H     ZZZZZZZZZZZZZZZZ Z
8005  H     EAEA             H
8014  H     EAEA             H
8015  H     UUUUUUUUUUUUUUUU U
8034  H     UUUUUUUUUUUUUUUU U
8035  H     EAEB             H
# 10 ns before: undefined at once, then 15 ns late
8600  L     EAEB             H
8625  L     ZZZZZZZZZZZZZZZZ Z
8990  H     ZZZZZZZZZZZZZZZZ Z
9014  H     ZZZZZZZZZZZZZZZZ Z
9015  H     UUUUUUUUUUUUUUUU U
9044  H     UUUUUUUUUUUUUUUU U
9045  H     EAEB             H
# 5 ns behind: with the address in time
9600  L     EAEB             H
9625  L     ZZZZZZZZZZZZZZZZ Z
10005 H     ZZZZZZZZZZZZZZZZ Z
10029 H     ZZZZZZZZZZZZZZZZ Z
10030 H     EAEC             H
10060 H     EAEC             H
# 26 ns before: the old address for another nanosecond
11600 L     EAEC             H
11625 L     ZZZZZZZZZZZZZZZZ Z
11974 H     ZZZZZZZZZZZZZZZZ Z
11999 H     EAEC             H
12009 H     EAEC             H
12010 H     UUUUUUUUUUUUUUUU U
12028 H     UUUUUUUUUUUUUUUU U
12029 H     EAEC             H
12030 H     EAED             H
