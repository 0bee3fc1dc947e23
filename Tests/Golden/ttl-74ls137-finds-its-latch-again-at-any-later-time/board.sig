time   C B A _GL G1 _G2 => Y
0      H H L L   H  L      UUUUUUUU
1      L L H H   H  L      UUUUUUUU
37     L L H H   H  L      UUUUUUUU
38     L L H H   H  L      HLHHHHHH
39     L L H H   H  L      HLHHHHHH
1000   L H H H   H  L      HLHHHHHH
1037   L H H H   H  L      HLHHHHHH
1038   L H H H   H  L      HLHHHHHH
20000  L H H H   H  L      HLHHHHHH
# much later
50000  H L L H   H  L      HLHHHHHH
50037  H L L H   H  L      HLHHHHHH
50038  H L L H   H  L      HLHHHHHH
50100  H L L H   L  L      HLHHHHHH
50137  H L L H   L  L      HLHHHHHH
50138  H L L H   L  L      HHHHHHHH
# disabled for long
120000 H L L H   H  L      HHHHHHHH
120037 H L L H   H  L      HHHHHHHH
120038 H L L H   H  L      HLHHHHHH
120100 L L H H   H  L      HLHHHHHH
120137 L L H H   H  L      HLHHHHHH
120138 L L H H   H  L      HLHHHHHH
# a late pulse of 1 ns on _GL replaces what has stood since 0
200000 L L H L   H  L      HLHHHHHH
200001 H L L H   H  L      HLHHHHHH
200037 H L L H   H  L      HLHHHHHH
200038 H L L H   H  L      HHHHHHLH
200039 H L L H   H  L      HHHHHHLH
200100 H L L H   H  H      HHHHHHLH
200137 H L L H   H  H      HHHHHHLH
200138 H L L H   H  H      HHHHHHHH
300000 L H L H   H  L      HHHHHHHH
300037 L H L H   H  L      HHHHHHHH
300038 L H L H   H  L      HHHHHHLH
400000 L H L H   H  L      HHHHHHLH
