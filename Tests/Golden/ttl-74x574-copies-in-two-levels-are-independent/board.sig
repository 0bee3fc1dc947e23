time clk_pa _OE_pa clk_pb _OE_pb clk_qa _OE_qa clk_qb _OE_qb D  ==(dT)=> P        Q
0    L      H      L      H      L      H      L      H      00 20       ZZZZZZZZ ZZZZZZZZ
# each of the four takes a word of its own
100  H      H      L      H      L      H      L      H      11 20       ZZZZZZZZ ZZZZZZZZ
200  H      H      H      H      L      H      L      H      22 20       ZZZZZZZZ ZZZZZZZZ
300  H      H      H      H      H      H      L      H      33 20       ZZZZZZZZ ZZZZZZZZ
400  H      H      H      H      H      H      H      H      44 20       ZZZZZZZZ ZZZZZZZZ
500  L      L      H      H      H      H      H      H      00 20       11       ZZZZZZZZ
600  L      L      H      H      H      H      H      L      00 20       11       44
700  L      H      H      L      H      H      H      L      00 20       22       44
# contention stays where it is
800  L      H      H      L      H      L      H      L      00 20       22       UUUUUUUU
900  L      H      H      L      H      L      H      H      00 20       22       33
1000 L      H      H      H      H      L      H      H      00 20       ZZZZZZZZ 33
1100 H      H      H      H      H      L      H      H      99 20       ZZZZZZZZ 33
1200 H      L      H      H      H      L      H      H      00 20       99       33
1300 H      L      H      H      H      H      H      H      00 20       99       ZZZZZZZZ
