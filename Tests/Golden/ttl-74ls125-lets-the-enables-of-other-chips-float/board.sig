time level _on ==(dT)=> dual.O1 latch.Y  wide.Y           buffer.1Y equal._P=Q
0    H     H   63       UUUU    HHHHHHLH UUUUUUUUUUUUUUUU UUUU      U
100  L     L   63       HHLH    HHHHHHLH HHHHHHHHHHHHHHLH LHLH      L
200  H     L   63       HHHH    HHHHHHHH HHHHHHHHHHHHHHHH ZZZZ      H
# from low and from high: an undefined enable of the 137 pulls the line low
300  H     H   63       UUUU    HHHHHHLH UUUUUUUUUUUUUUUU UUUU      U
400  L     L   63       HHLH    HHHHHHLH HHHHHHHHHHHHHHLH LHLH      L
500  L     H   63       UUUU    HHHHHHLH UUUUUUUUUUUUUUUU UUUU      U
600  H     L   63       HHHH    HHHHHHHH HHHHHHHHHHHHHHHH ZZZZ      H
