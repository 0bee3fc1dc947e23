; Shows the primes below 256 on the latch, one after the other, and how many there are at the end.

composite = $0200       ; a byte for each number, not 0 if it's a product
step      = $00
count     = $01
latch     = $4000

.segment "CODE"

reset:  cld
        ldx #$FF
        txs

; A RAM holds anything when it's switched on.
        lda #0
        sta count
        tax
clear:  sta composite,x
        inx
        bne clear

        ldx #2
look:   lda composite,x
        bne next
        stx latch
        inc count
; A product below 256 has a factor below 16.
        cpx #16
        bcs next
        stx step
        txa
        asl
strike: tay
        sta composite,y         ; a product itself is never 0
        clc
        adc step
        bcc strike
next:   inx
        bne look

        lda count
        sta latch
stop:   jmp stop

; Nobody pulls these lines.
ignore: rti

.segment "VECTORS"
        .word ignore, reset, ignore
