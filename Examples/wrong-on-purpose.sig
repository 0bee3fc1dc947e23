# This verification fails ON PURPOSE: the last two lines expect what an Or would give. tarnsim names each mismatch with
# its time and column, counts them, and ends with the count as its exit status: 2.

time  a b  ==(dT)=>  sum carry

0     L L     50     L   L
100   H L     50     H   L
200   L H     50     H   H
300   H H     50     H   H
