# Nothing is selected. H is stored into cell 0 of the first word and cell 1 of the other, L into the others.
time D k0 k1 s x1 x2 => wire
0    L L  L  L H  H     U
1    L L  L  L H  H     U
2    L L  L  L H  H     Z
10   H H  L  L H  H     Z
20   L L  L  L H  H     Z
30   L L  H  L H  H     Z
39   L L  H  L H  H     Z
# The first word, 1 ns for its selection and 1 ns for its driver.
40   L L  L  L L  H     Z
41   L L  L  L L  H     Z
42   L L  L  L L  H     H
50   L L  L  H L  H     H
52   L L  L  H L  H     L
# The other one.
60   L L  L  H H  L     L
62   L L  L  H H  L     H
70   L L  L  L H  L     H
72   L L  L  L H  L     L
# A selected cell is clocked: 2 ns and 1 ns.
80   H L  H  L H  L     L
82   H L  H  L H  L     L
83   H L  H  L H  L     H
# Both words.
90   H L  H  L L  L     H
92   H L  H  L L  L     U
100  H L  H  L H  H     U
102  H L  H  L H  H     Z
