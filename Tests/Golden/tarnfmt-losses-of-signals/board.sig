time a ==(dT)=> ~q r
# quick
u1(fast) indeed
0 UUUU 5 ZLLLL H
10 L 5 H H
# done
