# As bits that no port covers, the upper four stay undefined.
time x => q
0    A    UUUUHLHL
5    3    UUUULLHH
