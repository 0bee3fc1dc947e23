h(delay=oops)
time a => q
0 0 U
2 0 U
3 0 L
