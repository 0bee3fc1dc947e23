time a => q
2147483648 H L
