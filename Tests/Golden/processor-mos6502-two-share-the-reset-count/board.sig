# Falls of both processors count together.
time  _RES => A1               A2
0     H       UUUUUUUUUUUUUUUU UUUUUUUUUUUUUUUU
6250  H       FFFD             FFFD
6750  H       EAEA             FFFD
7250  H       EAEA             EAEA
7750  H       EAEB             EAEA
# low for one fall of each: two in all
8250  L       EAEB             EAEB
8750  L       EAEB             EAEB
# high: the first fall resets its processor and clears the count for the other
9250  H       EAEB             EAEB
9750  H       0000             EAEB
# low for two falls of cpu1 and one of cpu2: now cpu2 comes first
10250 L       0000             EAEC
10750 L       0100             EAEC
11250 L       0100             EAEC
11750 H       01FF             EAEC
12250 H       01FF             0000
12750 H       01FE             0000
13250 H       01FE             0100
13750 H       FFFC             0100
14250 H       FFFC             01FF
