# c
time => q
