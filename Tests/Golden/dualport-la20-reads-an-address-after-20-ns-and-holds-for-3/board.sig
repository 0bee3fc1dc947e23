time A   _OE _CE => qL       qR
# The first access ends 20 ns after the start.
0    001 L   L      UUUUUUUU UUUUUUUU
19   001 L   L      UUUUUUUU UUUUUUUU
20   001 L   L      41       41
# Another address: the word stands for 3 ns, the new one comes after 20 ns.
300  002 L   L      41       41
302  002 L   L      41       41
303  002 L   L      UUUUUUUU UUUUUUUU
319  002 L   L      UUUUUUUU UUUUUUUU
320  002 L   L      42       42
# And back.
600  001 L   L      42       42
602  001 L   L      42       42
603  001 L   L      UUUUUUUU UUUUUUUU
619  001 L   L      UUUUUUUU UUUUUUUU
620  001 L   L      41       41
