time A   _OE _CE => qL       qR
# The first access ends 25 ns after the start.
0    001 L   L      UUUUUUUU UUUUUUUU
24   001 L   L      UUUUUUUU UUUUUUUU
25   001 L   L      41       41
# Another address: the word stands for 3 ns, the new one comes after 25 ns.
300  002 L   L      41       41
302  002 L   L      41       41
303  002 L   L      UUUUUUUU UUUUUUUU
324  002 L   L      UUUUUUUU UUUUUUUU
325  002 L   L      42       42
# And back.
600  001 L   L      42       42
602  001 L   L      42       42
603  001 L   L      UUUUUUUU UUUUUUUU
624  001 L   L      UUUUUUUU UUUUUUUU
625  001 L   L      41       41
