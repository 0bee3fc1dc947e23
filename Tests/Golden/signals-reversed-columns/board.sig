time ~a => ~q
0  1  1         # four bits, reversed: HLLL
1  ~1 ~1        # reversed twice
2  12 LLLHLLHL  # both cells are reversed
