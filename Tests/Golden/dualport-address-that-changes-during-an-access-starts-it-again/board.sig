_OE = L
_CE = L
time A   => qL       qR
0    001    UUUUUUUU UUUUUUUU
20   001    41       41
# A second address before the first is through: the access begins anew.
100  002    41       41
102  002    41       41
103  002    UUUUUUUU UUUUUUUU
110  003    UUUUUUUU UUUUUUUU
120  003    UUUUUUUU UUUUUUUU
129  003    UUUUUUUU UUUUUUUU
130  003    43       43
# At the last moment: the word isn't seen at all.
200  004    43       43
219  004    UUUUUUUU UUUUUUUU
220  005    UUUUUUUU UUUUUUUU
223  005    UUUUUUUU UUUUUUUU
239  005    UUUUUUUU UUUUUUUU
240  005    45       45
# 1 ns later: the word stands for the output hold.
300  006    45       45
320  006    46       46
321  007    46       46
323  007    46       46
324  007    UUUUUUUU UUUUUUUU
340  007    UUUUUUUU UUUUUUUU
341  007    47       47
# A glitch on the address that comes back makes the output undefined, too.
400  008    47       47
401  007    47       47
402  007    47       47
403  007    UUUUUUUU UUUUUUUU
420  007    UUUUUUUU UUUUUUUU
421  007    47       47
# Addresses faster than the access never show a word.
500  001    47       47
503  001    UUUUUUUU UUUUUUUU
519  002    UUUUUUUU UUUUUUUU
520  002    UUUUUUUU UUUUUUUU
538  003    UUUUUUUU UUUUUUUU
539  003    UUUUUUUU UUUUUUUU
557  003    UUUUUUUU UUUUUUUU
558  003    43       43
