; ca65 --cpu 65C02 program.s -o program.o && ld65 -C program.cfg program.o
.segment "CODE"
start:  lda #$5A
        inc a
        sta $0200
loop:   bra loop

.segment "VECTORS"
        .word $1FFC         ; where it lies in the EPROM
        .word start         ; reset
