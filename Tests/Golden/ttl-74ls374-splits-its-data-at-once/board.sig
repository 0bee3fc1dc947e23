time clk _OE D        => u.373split.7 u.373split.4 u.373split.0 u.dff[7].D u.dff[4].D u.dff[0].D
0    L   L   80          H            L            L            H          L          L
1    L   L   10          L            H            L            L          H          L
2    L   L   01          L            L            H            L          L          H
3    L   L   UUULLLLZ    U            L            U            U          L          U
