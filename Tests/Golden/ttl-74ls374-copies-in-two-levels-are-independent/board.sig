time clk_pa clk_pb clk_qa clk_qb _OE_p _OE_q D  ==(dT)=> PA       PB       QA       QB
0    L      L      L      L      L     L     00 20       UUUUUUUU UUUUUUUU UUUUUUUU UUUUUUUU
# each of the four takes a word of its own
100  H      L      L      L      L     L     11 20       11       UUUUUUUU UUUUUUUU UUUUUUUU
200  H      H      L      L      L     L     22 20       11       22       UUUUUUUU UUUUUUUU
300  H      H      H      L      L     L     33 20       11       22       33       UUUUUUUU
400  H      H      H      H      L     L     44 20       11       22       33       44
500  L      H      H      H      H     L     55 20       UUUUUUUU UUUUUUUU 33       44
600  H      H      H      H      H     L     55 20       UUUUUUUU UUUUUUUU 33       44
700  H      H      H      H      L     H     00 20       55       22       UUUUUUUU UUUUUUUU
800  H      H      H      L      L     U     66 20       55       22       UUUUUUUU UUUUUUUU
900  H      H      H      H      L     L     66 20       55       22       33       66
