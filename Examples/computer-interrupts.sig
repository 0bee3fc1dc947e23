# The timer ticks at 100250, 200250, 300250..., and its request stands 35 ns later. The processor is done with it in less
# than 40 us.

time    _reset  _clear  =>  shown  _irq

# Reset: two negative flanks of the clock with _reset low, one with _reset high. The program lets go of _IRQ at its start.
0       L       H           X      X
27      L       H           00     U
2500    H       H           00     U
50000   H       H           00     H

# The first tick. The idle loop has an opcode fetch at 30000 and each 3 us from there; the one at 102000 is the first that
# comes late enough after the request. Its 7 cycles of interrupt and 15 of the program end at 124000, and the write that
# lets go of _IRQ has its strobe from 127505 on.
100284  H       H           00     H
100285  H       H           00     L
124031  H       H           00     L
124032  H       H           01     L
127539  H       H           01     L
127540  H       H           01     H
140000  H       H           01     H

# And more of them, each counted once
200284  H       H           01     H
200285  H       H           01     L
240000  H       H           02     H
300285  H       H           02     L
340000  H       H           03     H

# The button clears the count. It is kept down for long, and that counts once too.
350000  H       L           03     H
380000  H       L           00     H
400284  H       L           00     H
400285  H       L           00     L
440000  H       L           01     H
460000  H       H           01     H

# From now on it counts on.
500285  H       H           01     L
540000  H       H           02     H

# The button just after a tick: what was asked last comes first, and the tick is counted behind it.
600285  H       H           02     L
600300  H       L           02     L
630000  H       L           00     L
680000  H       L           01     H
700000  H       H           01     H
740000  H       H           02     H
