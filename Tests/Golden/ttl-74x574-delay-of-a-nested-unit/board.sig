time clk_pa _OE_pa clk_pb _OE_pb clk_qa _OE_qa clk_qb _OE_qb D  => P        Q
0    L      L      L      H      L      H      L      L      5A    UUUUUUUU UUUUUUUU
19   L      L      L      H      L      H      L      L      5A    UUUUUUUU UUUUUUUU
20   L      L      L      H      L      H      L      L      5A    UUUUUUUU UUUUUUUU
100  H      L      L      H      L      H      H      L      5A    UUUUUUUU UUUUUUUU
119  H      L      L      H      L      H      H      L      5A    UUUUUUUU UUUUUUUU
120  H      L      L      H      L      H      H      L      5A    5A       5A
200  H      H      L      H      L      H      H      L      5A    5A       5A
219  H      H      L      H      L      H      H      L      5A    5A       5A
220  H      H      L      H      L      H      H      L      5A    ZZZZZZZZ 5A
