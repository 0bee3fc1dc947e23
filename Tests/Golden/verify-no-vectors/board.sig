time a => q
