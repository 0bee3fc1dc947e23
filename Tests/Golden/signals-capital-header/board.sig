Time a => q
