time a => q

100 # digits alone
