time a => q
time a
