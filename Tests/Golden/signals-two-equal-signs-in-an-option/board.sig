g(delay=1=2)
time a => q
