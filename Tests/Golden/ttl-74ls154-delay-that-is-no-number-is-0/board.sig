time D C B A _G1 _G2 => u.Y              u.Y9
0    H L L H L   L      HHHHHHLHHHHHHHHH L
5    H L L H H   L      HHHHHHHHHHHHHHHH H
6    H L L U H   L      UUUUUUUUUUUUUUUU U
