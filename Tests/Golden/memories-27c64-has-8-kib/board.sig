# full.bin: each of its 8192 bytes is the low byte of its address plus 37 times the high one.
time A    => D
# the first word, each address line alone high, alone low, the last word
0    0000    00
10   0001    01
20   0002    02
30   0004    04
40   0008    08
50   0010    10
60   0020    20
70   0040    40
80   0080    80
90   0100    25
100  0200    4A
110  0400    94
120  0800    28
130  1000    50
140  1FFE    79
150  1FFD    78
160  1FFB    76
170  1FF7    72
180  1FEF    6A
190  1FDF    5A
200  1FBF    3A
210  1F7F    FA
220  1EFF    55
230  1DFF    30
240  1BFF    E6
250  17FF    52
260  0FFF    2A
270  1FFF    7A
