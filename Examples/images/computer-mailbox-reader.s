; Shows on the latch what comes into the mailbox from its other side.

        .setcpu "65C02"

full  = $00             ; not 0 while a byte waits to be read
byte  = $01
latch = $4000

.segment "CODE"

reset:  cld
; Both sides empty the mailbox before they look into it.
        stz full
wait:   lda full
        beq wait
        lda byte
        sta latch
        stz full
        bra wait

; Nobody pulls these lines.
ignore: rti

.segment "VECTORS"
        .word ignore, reset, ignore
