# See the glitches with: tarnsim Examples/glitch.nlx Examples/glitch.sig -R2 -n n_not_a

time  a => pulse edge

0     L      X    X
20    H      L    L
# In the middle of the glitch after the rising flank at 20: it lasts from 24 to 34.
25    H      H    L
40    L      L    L
# And after the falling one at 40: from 44 to 54.
45    L      L    H
60    L      L    L
