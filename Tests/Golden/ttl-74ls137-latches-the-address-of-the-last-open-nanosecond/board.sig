time  C B A _GL G1 _G2 => Y
0     L H H L   H  L      UUUUUUUU
37    L H H L   H  L      UUUUUUUU
38    L H H L   H  L      HHHHLHHH
# 3 is latched
100   L H H H   H  L      HHHHLHHH
137   L H H H   H  L      HHHHLHHH
138   L H H H   H  L      HHHHLHHH
# the pins change, the latch does not
200   H L L H   H  L      HHHHLHHH
237   H L L H   H  L      HHHHLHHH
238   H L L H   H  L      HHHHLHHH
300   L L L H   H  L      HHHHLHHH
337   L L L H   H  L      HHHHLHHH
338   L L L H   H  L      HHHHLHHH
390   L L L H   H  L      HHHHLHHH
# open again; closed in the ns in which the address changes: the old one stays
400   H L H L   H  L      HHHHLHHH
437   H L H L   H  L      HHHHLHHH
438   H L H L   H  L      HHLHHHHH
500   L L H H   H  L      HHLHHHHH
537   L L H H   H  L      HHLHHHHH
538   L L H H   H  L      HHLHHHHH
600   H H H H   H  L      HHLHHHHH
637   H H H H   H  L      HHLHHHHH
638   H H H H   H  L      HHLHHHHH
690   H H H H   H  L      HHLHHHHH
# an address 1 ns before the edge gets in, one 1 ns behind it does not
700   L L L L   H  L      HHLHHHHH
737   L L L L   H  L      HHLHHHHH
738   L L L L   H  L      HHHHHHHL
799   H H L L   H  L      HHHHHHHL
800   H H L H   H  L      HHHHHHHL
801   L H L H   H  L      HHHHHHHL
836   L H L H   H  L      HHHHHHHL
837   L H L H   H  L      HLHHHHHH
838   L H L H   H  L      HLHHHHHH
839   L H L H   H  L      HLHHHHHH
# open for 1 ns
900   L H L L   H  L      HLHHHHHH
901   L L H H   H  L      HLHHHHHH
937   L L H H   H  L      HLHHHHHH
938   L L H H   H  L      HHHHHLHH
939   L L H H   H  L      HHHHHLHH
# and a long time later
5000  L L H H   H  L      HHHHHLHH
60000 L L H H   H  L      HHHHHLHH
