time S1 S0 clk_p clk_q ==(dT)=> P        Q
0    H  H  L     L     17       UUUUUUUU UUUUUUUU
100  H  H  H     L     17       UUUUUUUU UUUUUUUU
200  H  H  H     H     17       UUUUUUUU UUUUUUUU
300  H  H  L     L     17       UUUUUUUU UUUUUUUU
# only one of them is loaded, then counts
400  H  L  H     L     17       5A       UUUUUUUU
500  H  H  L     L     17       5A       UUUUUUUU
600  H  H  H     L     17       5B       UUUUUUUU
700  H  H  H     H     17       5B       UUUUUUUU
