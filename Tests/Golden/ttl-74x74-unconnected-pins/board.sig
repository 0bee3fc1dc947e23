time _SD _CD CP D ==(dT)=> no_sd.Q1 no_sd.Q2 no_cd.Q1 no_cd.Q2 no_cp.Q1 no_cp.Q2 no_d.Q1 no_d.Q2
0    H   L   L  H 35       U        L        U        L        L        L        L       L
100  H   H   L  H 35       U        L        U        L        U        L        L       L
200  H   H   H  H 35       U        H        U        H        U        H        U       H
300  L   H   H  H 35       U        H        U        H        H        H        H       H
400  L   L   H  H 35       U        H        U        H        H        H        H       H
500  H   L   H  H 35       U        L        U        L        L        L        L       L
600  H   H   L  H 35       U        L        U        L        U        L        L       L
