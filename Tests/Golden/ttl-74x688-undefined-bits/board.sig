time _G P        Q        ==(dT)=> _P=Q
# each bit of P, of Q
0    L  UHLHLHLH 55       25       U
100  L  55       ZHLHLHLH 25       U
200  L  LULHLHLH 55       25       U
300  L  55       LZLHLHLH 25       U
400  L  LHUHLHLH 55       25       U
500  L  55       LHZHLHLH 25       U
600  L  LHLULHLH 55       25       U
700  L  55       LHLZLHLH 25       U
800  L  LHLHUHLH 55       25       U
900  L  55       LHLHZHLH 25       U
1000 L  LHLHLULH 55       25       U
1100 L  55       LHLHLZLH 25       U
1200 L  LHLHLHUH 55       25       U
1300 L  55       LHLHLHZH 25       U
1400 L  LHLHLHLU 55       25       U
1500 L  55       LHLHLHLZ 25       U
# also where the words differ anyway, and where both are alike
1600 L  ULLLLLLL 7F       25       U
1700 L  55       55       25       L
1800 L  ULLLLLLL ULLLLLLL 25       U
1900 L  ZZZZZZZZ ZZZZZZZZ 25       U
2000 L  55       54       25       H
# they do not matter while it is off
2100 H  ULLLLLLL 55       25       H
2200 H  55       ZZZZZZZZ 25       H
2300 H  UUUUUUUU ZZZZZZZZ 25       H
