time ram.AL ram.RWL ram._OEL ram._CEL ram.AR ram.RWR ram._OER ram._CER => ram.IOL  ram.IOR  ram.BUSYL ram.BUSYR
# Straight on the pins a Z or X on _OE is no high one, so it enables as a low one does, though without being announced:
# _CE does that.
0    003    H       Z        H        004    H       X        H           UUUUUUUU UUUUUUUU U         U
10   003    H       Z        H        004    H       X        H           ZZZZZZZZ ZZZZZZZZ U         U
30   003    H       Z        H        004    H       X        H           ZZZZZZZZ ZZZZZZZZ H         H
100  003    H       Z        L        004    H       X        L           UUUUUUUU UUUUUUUU H         H
119  003    H       Z        L        004    H       X        L           UUUUUUUU UUUUUUUU H         H
120  003    H       Z        L        004    H       X        L           43       44       H         H
# A Z or X on _CE reads nothing, and nothing is scheduled.
200  003    H       Z        Z        004    H       X        X           43       44       H         H
240  003    H       Z        Z        004    H       X        X           43       44       H         H
300  005    H       Z        Z        006    H       X        X           43       44       H         H
303  005    H       Z        Z        006    H       X        X           UUUUUUUU UUUUUUUU H         H
320  005    H       Z        Z        006    H       X        X           UUUUUUUU UUUUUUUU H         H
340  005    H       Z        Z        006    H       X        X           UUUUUUUU UUUUUUUU H         H
# Low again, from Z: the outputs never closed, so there is nothing to open, and the word is there after 20 ns.
400  005    H       Z        L        006    H       X        L           UUUUUUUU UUUUUUUU H         H
419  005    H       Z        L        006    H       X        L           UUUUUUUU UUUUUUUU H         H
420  005    H       Z        L        006    H       X        L           45       46       H         H
500  005    H       Z        H        006    H       X        H           45       46       H         H
510  005    H       Z        H        006    H       X        H           ZZZZZZZZ ZZZZZZZZ H         H
