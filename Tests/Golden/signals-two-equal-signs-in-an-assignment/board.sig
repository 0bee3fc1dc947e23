time a => q
a=H=L
