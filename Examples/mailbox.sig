# LA55: read access 55 ns, write pulse above 30 ns with 40 ns of stable address, outputs float 25 ns after the enable goes.

right_rw = H

time  left_address  left_data  left_rw  left_ce  left_oe  right_address  right_ce  right_oe  =>  left_bus  right_bus  left_busy  right_busy

# The left side writes "Hi" to 010 and 011, while the right side rests.
0     010           48         H        L        H        000            H         H             X         X          X          X
50    010           48         L        L        H        000            H         H             X         X          X          X
54    010           48         L        L        H        000            H         H             48        X          H          H
100   010           48         H        L        H        000            H         H             48        X          H          H
104   010           48         H        L        H        000            H         H             ZZZZZZZZ  X          H          H
150   011           69         H        L        H        000            H         H             ZZZZZZZZ  X          H          H
200   011           69         L        L        H        000            H         H             ZZZZZZZZ  X          H          H
250   011           69         H        L        H        000            H         H             69        X          H          H

# The right side reads the first letter: 55 ns after its enable it's there.
300   011           69         H        H        H        010            L         L             ZZZZZZZZ  X          H          H
354   011           69         H        H        H        010            L         L             ZZZZZZZZ  UUUUUUUU   H          H
355   011           69         H        H        H        010            L         L             ZZZZZZZZ  48         H          H

# The next address: the old letter holds for 3 ns, the new one is there after 55.
400   011           69         H        H        H        011            L         L             ZZZZZZZZ  48         H          H
402   011           69         H        H        H        011            L         L             ZZZZZZZZ  48         H          H
403   011           69         H        H        H        011            L         L             ZZZZZZZZ  UUUUUUUU   H          H
454   011           69         H        H        H        011            L         L             ZZZZZZZZ  UUUUUUUU   H          H
455   011           69         H        H        H        011            L         L             ZZZZZZZZ  69         H          H

# The left side comes to write where the right one is reading: it came last, is told to wait 30 ns later, and nothing is
# stored. The RAM reports each look at the pins that finds the collision.
500   011           21         L        L        H        011            L         L             ZZZZZZZZ  69         H          H
529   011           21         L        L        H        011            L         L             21        69         H          H
530   011           21         L        L        H        011            L         L             21        69         L          H
650   011           21         H        H        H        011            L         L             21        69         L          H
700   011           21         H        H        H        011            H         H             ZZZZZZZZ  69         L          H
705   011           21         H        H        H        011            H         H             ZZZZZZZZ  69         H          H
724   011           21         H        H        H        011            H         H             ZZZZZZZZ  69         H          H
725   011           21         H        H        H        011            H         H             ZZZZZZZZ  ZZZZZZZZ   H          H

# Once more where nobody else is: then the right side finds it.
800   012           21         L        L        H        011            H         H             ZZZZZZZZ  ZZZZZZZZ   H          H
850   012           21         H        H        H        012            L         L             21        ZZZZZZZZ   H          H
905   012           21         H        H        H        012            L         L             ZZZZZZZZ  21         H          H
