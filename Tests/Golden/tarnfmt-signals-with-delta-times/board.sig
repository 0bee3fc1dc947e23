# Counts twice.
#
# By hand.
time clk d ==(dT)=> q bus
u5(fast,delay=20)
reset = H

# first step
0 L 5 40 X X          # and here
100 H HLLH 40 H A5
1000 h LLL 5 L HHLLLHLH
