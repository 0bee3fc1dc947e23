time A   _OE _CE => qL       qR
# The first access ends 100 ns after the start.
0    001 L   L      UUUUUUUU UUUUUUUU
99   001 L   L      UUUUUUUU UUUUUUUU
100  001 L   L      41       41
# Another address: the word stands for 10 ns, the new one comes after 100 ns.
300  002 L   L      41       41
309  002 L   L      41       41
310  002 L   L      UUUUUUUU UUUUUUUU
399  002 L   L      UUUUUUUU UUUUUUUU
400  002 L   L      42       42
# And back.
600  001 L   L      42       42
609  001 L   L      42       42
610  001 L   L      UUUUUUUU UUUUUUUU
699  001 L   L      UUUUUUUU UUUUUUUU
700  001 L   L      41       41
