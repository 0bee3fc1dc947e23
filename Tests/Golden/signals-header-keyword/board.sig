timex a => q
