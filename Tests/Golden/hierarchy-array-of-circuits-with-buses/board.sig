time d[0] => y=
0 A A
1 HUZX HUUU
