time clk_pa clk_pb clk_qa clk_qb _OE_p _OE_q D  => PA       PB       QA       QB
0    L      L      L      L      L     L     5A    UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
100  H      L      L      H      L     L     5A    UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
119  H      L      L      H      L     L     5A    UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
120  H      L      L      H      L     L     5A    5A       UUUUUUUU UUUUUUUU 5A
200  H      L      L      H      H     L     5A    5A       UUUUUUUU UUUUUUUU 5A
219  H      L      L      H      H     L     5A    5A       UUUUUUUU UUUUUUUU 5A
220  H      L      L      H      H     L     5A    UUUUUUUU UUUUUUUU UUUUUUUU 5A
