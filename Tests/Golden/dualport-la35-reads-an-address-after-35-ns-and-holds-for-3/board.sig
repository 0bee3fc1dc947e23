time A   _OE _CE => qL       qR
# The first access ends 35 ns after the start.
0    001 L   L      UUUUUUUU UUUUUUUU
34   001 L   L      UUUUUUUU UUUUUUUU
35   001 L   L      41       41
# Another address: the word stands for 3 ns, the new one comes after 35 ns.
300  002 L   L      41       41
302  002 L   L      41       41
303  002 L   L      UUUUUUUU UUUUUUUU
334  002 L   L      UUUUUUUU UUUUUUUU
335  002 L   L      42       42
# And back.
600  001 L   L      42       42
602  001 L   L      42       42
603  001 L   L      UUUUUUUU UUUUUUUU
634  001 L   L      UUUUUUUU UUUUUUUU
635  001 L   L      41       41
