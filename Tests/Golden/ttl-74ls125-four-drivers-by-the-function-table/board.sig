time A1 C1 A2 C2 A3 C3 A4 C4 ==(dT)=> u.Y1 u.Y2 u.Y3 u.Y4
# each gate goes through all pairs, and no two gates ever have the same pair
0    L  L  H  H  U  U  Z  Z  25       L    Z    U    U
100  L  H  H  U  U  Z  L  L  25       Z    U    U    L
200  L  U  H  Z  Z  L  L  H  25       U    U    U    Z
300  L  Z  U  L  Z  H  L  U  25       U    U    Z    U
400  H  L  U  H  Z  U  L  Z  25       H    Z    U    U
500  H  H  U  U  Z  Z  H  L  25       Z    U    U    H
600  H  U  U  Z  L  L  H  H  25       U    U    L    Z
700  H  Z  Z  L  L  H  H  U  25       U    U    Z    U
800  U  L  Z  H  L  U  H  Z  25       U    Z    U    U
900  U  H  Z  U  L  Z  U  L  25       Z    U    U    U
1000 U  U  Z  Z  H  L  U  H  25       U    U    H    Z
1100 U  Z  L  L  H  H  U  U  25       U    L    Z    U
1200 Z  L  L  H  H  U  U  Z  25       U    Z    U    U
1300 Z  H  L  U  H  Z  Z  L  25       Z    U    U    U
1400 Z  U  L  Z  U  L  Z  H  25       U    U    U    Z
1500 Z  Z  H  L  U  H  Z  U  25       U    H    Z    U
# one gate enabled
1600 L  L  L  H  L  H  L  H  25       L    Z    Z    Z
1700 L  H  L  L  L  H  L  H  25       Z    L    Z    Z
1800 L  H  L  H  L  L  L  H  25       Z    Z    L    Z
1900 L  H  L  H  L  H  L  L  25       Z    Z    Z    L
2000 H  L  H  H  H  H  H  H  25       H    Z    Z    Z
2100 H  H  H  L  H  H  H  H  25       Z    H    Z    Z
2200 H  H  H  H  H  L  H  H  25       Z    Z    H    Z
2300 H  H  H  H  H  H  H  L  25       Z    Z    Z    H
