time A   _OE _CE => qL       qR
# The first access ends 55 ns after the start.
0    001 L   L      UUUUUUUU UUUUUUUU
54   001 L   L      UUUUUUUU UUUUUUUU
55   001 L   L      41       41
# Another address: the word stands for 3 ns, the new one comes after 55 ns.
300  002 L   L      41       41
302  002 L   L      41       41
303  002 L   L      UUUUUUUU UUUUUUUU
354  002 L   L      UUUUUUUU UUUUUUUU
355  002 L   L      42       42
# And back.
600  001 L   L      42       42
602  001 L   L      42       42
603  001 L   L      UUUUUUUU UUUUUUUU
654  001 L   L      UUUUUUUU UUUUUUUU
655  001 L   L      41       41
