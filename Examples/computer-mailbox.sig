# Both processors are reset by two of their negative flanks with _reset low and one with _reset high. The writer fetches its
# first opcode at 9000, the reader at 9505, and from the first letter on one comes each 36 us. It stands on the latch 32 ns
# behind the end of the reader's cycle.

time    _reset  =>  shown  writer_busy  reader_busy

0       L           X      X            X
27      L           00     X            X
2750    H           00     H            H
50000   H           00     H            H

# The message, in ASCII
50536   H           00     H            H
50537   H           54     H            H            # T
86536   H           54     H            H
86537   H           41     H            H            # A
122536  H           41     H            H
122537  H           52     H            H            # R
158536  H           52     H            H
158537  H           4E     H            H            # N
194536  H           4E     H            H
194537  H           53     H            H            # S
230536  H           53     H            H
230537  H           49     H            H            # I
266536  H           49     H            H
266537  H           4D     H            H            # M

# Nothing follows, and the reader waits.
400000  H           4D     H            H
