; The reset vector, behind the address in the EPROM at which it is loaded.
; ca65 vector.s -o vector.o && ld65 -t none vector.o -o vector.bin

        .code
        .word $1FFC
        .word $E000
