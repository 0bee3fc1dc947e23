time _CTEN D_U CLK _LOAD DCBA => plain.QDCBA plain._RCO fast.QDCBA fast._RCO slow.QDCBA slow._RCO
0    L     L   L   L     F       UUUU        U          UUUU       U         UUUU       U
19   L     L   L   L     F       UUUU        U          UUUU       U         UUUU       U
20   L     L   L   L     F       UUUU        U          F          L         UUUU       U
51   L     L   L   L     F       UUUU        U          F          L         UUUU       U
52   L     L   L   L     F       F           L          F          L         UUUU       U
59   L     L   L   L     F       F           L          F          L         UUUU       U
60   L     L   L   L     F       F           L          F          L         F          L
100  L     L   L   H     0       F           L          F          L         F          L
200  L     L   H   H     0       F           L          F          L         F          L
219  L     L   H   H     0       F           L          F          L         F          L
220  L     L   H   H     0       F           L          0          H         F          L
251  L     L   H   H     0       F           L          0          H         F          L
252  L     L   H   H     0       0           H          0          H         F          L
259  L     L   H   H     0       0           H          0          H         F          L
260  L     L   H   H     0       0           H          0          H         0          H
