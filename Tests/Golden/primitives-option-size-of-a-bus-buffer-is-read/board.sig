# Nonsense is reported when the option is applied; the width stays.
b(size=wide)
time a g => y
0    5A L X
10   5A L 5A
20   5A H 5A
30   5A H ZZZZZZZZ
