time clk _OE D  ==(dT)=> Q        u.Q      u.dff[7].Q u.dff[7]._Q u.dff[0].Q u.dff[0]._Q u.373join.out
0    L   H   81 28       UUUUUUUU UUUUUUUU Z          Z           Z          Z           ZZZZZZZZ
100  H   H   80 28       UUUUUUUU UUUUUUUU Z          Z           Z          Z           ZZZZZZZZ
200  H   L   80 28       80       80       H          L           L          H           80
300  H   H   80 28       UUUUUUUU UUUUUUUU Z          Z           Z          Z           ZZZZZZZZ
400  L   U   01 28       UUUUUUUU UUUUUUUU U          U           U          U           UUUUUUUU
500  H   H   01 28       UUUUUUUU UUUUUUUU Z          Z           Z          Z           ZZZZZZZZ
600  H   L   01 28       01       01       L          H           H          L           01
