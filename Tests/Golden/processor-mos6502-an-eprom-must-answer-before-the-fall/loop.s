; Begins the EPROM; the processor sees it at E000.
; ca65 loop.s -o loop.o && ld65 -t none --start-addr 0xE000 loop.o -o loop.bin

        .code
loop:   nop
        jmp loop
