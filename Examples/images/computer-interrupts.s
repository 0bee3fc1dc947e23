; Counts the ticks of a timer on the latch. The timer pulls _IRQ, the clear button pulls _NMI.

count = $00
latch = $4000
quiet = $8000           ; a write here lets go of _IRQ

.segment "CODE"

reset:  cld
        ldx #$FF
        txs
        lda #0
        sta count
        sta latch
; The timer's flip-flop comes up anyhow.
        sta quiet
        cli
idle:   jmp idle

tick:   pha
        inc count
        lda count
        sta latch
        sta quiet
        pla
        rti

clear:  pha
        lda #0
        sta count
        sta latch
        pla
        rti

.segment "VECTORS"
        .word clear, reset, tick
