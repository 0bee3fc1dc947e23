# The truth table of the half adder. Each line sets the inputs at its time and looks at the outputs 50 ns later.

time  a b  ==(dT)=>  sum carry

0     L L     50     L   L
100   H L     50     H   L
200   L H     50     H   L
300   H H     50     L   H

# A floating input makes both outputs undefined: `Z` reads as `U` at the gates.
400   Z H     50     U   U

# But an And with one input low is low, whatever the other one does.
500   Z L     50     U   L
