; Sends a message, byte by byte, to whoever reads the other side of the mailbox.

full = $00              ; not 0 while a byte waits to be read
byte = $01

.segment "CODE"

reset:  cld
; Both sides empty the mailbox before they look into it.
        lda #0
        sta full
        tax
next:   lda full
        bne next
        lda message,x
        beq stop
        sta byte
        lda #1
        sta full
        inx
        bne next
stop:   jmp stop

message:
        .byte "TARNSIM", 0

; Nobody pulls these lines.
ignore: rti

.segment "VECTORS"
        .word ignore, reset, ignore
