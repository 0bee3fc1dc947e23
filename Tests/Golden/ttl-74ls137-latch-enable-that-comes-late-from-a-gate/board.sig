time C B A strobe => Y
0    L L H H         UUUUUUUU
37   L L H H         UUUUUUUU
38   L L H H         HHHHHHHH
42   L L H H         HHHHHHHH
43   L L H H         HHHHHHLH
# 3 at the strobe, 4 in the last open ns, 7 in the first closed one
100  L H H L         HHHHHHLH
104  H L L L         HHHHHHLH
105  H H H L         HHHHHHLH
137  H H H L         HHHHHHLH
138  H H H L         HHHHLHHH
141  H H H L         HHHHLHHH
142  H H H L         HHHLHHHH
143  H H H L         HHHLHHHH
146  H H H L         HHHLHHHH
147  H H H L         HHHLHHHH
148  H H H L         HHHLHHHH
# open again, and closed without a change of the address
200  L L L H         HHHLHHHH
237  L L L H         HHHLHHHH
238  L L L H         HHHLHHHH
242  L L L H         HHHLHHHH
243  L L L H         HHHHHHHL
300  H H L L         HHHHHHHL
# a strobe of 1 ns, 5 ns behind: open from 311 to 312
306  L H L H         HHHHHHHL
307  L H L L         HHHHHHHL
320  H L H L         HHHHHHHL
337  H L H L         HHHHHHHL
338  H L H L         HLHHHHHH
342  H L H L         HLHHHHHH
343  H L H L         HLHHHHHH
344  H L H L         HLHHHHHH
345  H L H L         HLHHHHHH
348  H L H L         HLHHHHHH
349  H L H L         HHHHHLHH
350  H L H L         HHHHHLHH
357  H L H L         HHHHHLHH
358  H L H L         HHHHHLHH
362  H L H L         HHHHHLHH
363  H L H L         HHHHHLHH
