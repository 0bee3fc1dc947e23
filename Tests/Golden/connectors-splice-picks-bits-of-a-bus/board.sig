time addr => a15 select inverted page odd
0    0000    L   L      U        0    LLL
2    0000    L   L      H        0    LLL
10   8000    H   H      H        0    HLL
11   8000    H   H      H        0    HLL
12   8000    H   H      L        0    HLL
20   7AFF    L   L      L        A    LLH
22   7AFF    L   L      H        A    LLH
30   F5FE    H   H      H        5    HHL
32   F5FE    H   H      L        5    HHL
