time A   lo hi float => byA.BUSYL byA.BUSYR byRW.BUSYL byCE.BUSYL byOffCE.BUSYL byOE.BUSYL byOffOE.BUSYL byOpenCE.BUSYL byOpenOE.BUSYL
# Nothing has happened yet: BUSY is undefined.
0    U   U  U  U        U         U         U          U          U             U          U             U              U
99   U   U  U  U        U         U         U          U          U             U          U             U              U
# 20 ns after the first look at the pins it is high: at once after an enable falls, 3 ns after an address, 10 ns after the rest.
# An enable that begins to float isn't looked at.
100  001 L  H  Z        U         U         U          U          U             U          U             U              U
119  001 L  H  Z        U         U         U          U          U             U          U             U              U
120  001 L  H  Z        U         U         U          H          U             H          U             U              U
122  001 L  H  Z        U         U         U          H          U             H          U             U              U
123  001 L  H  Z        H         H         U          H          U             H          U             U              U
129  001 L  H  Z        H         H         U          H          U             H          U             U              U
130  001 L  H  Z        H         H         H          H          H             H          H             U              U
200  001 L  H  Z        H         H         H          H          H             H          H             U              U
