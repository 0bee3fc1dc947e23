time s.in j.a j.b => s.rev s.bit j.out q
0    HLLL HL  LL     LLLH  L     LLLH  LLLH
10   ZXUH ZH  LX     HUXZ  X     LXHZ  LUHZ
20   LZHX XU  ZH     XHZL  Z     ZHUX  ZHUU
30   LHLH LL  HL     HLHL  H     HLLL  HLLL
