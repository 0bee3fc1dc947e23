; Shows a byte of the RAM on the latch, over and over. Somebody else changes it.

        .setcpu "65C02"

byte  = $0200
latch = $4000

.segment "CODE"

reset:  cld
        lda #$55
        sta byte
show:   lda byte
        sta latch
        bra show

; Nobody pulls these lines.
ignore: rti

.segment "VECTORS"
        .word ignore, reset, ignore
